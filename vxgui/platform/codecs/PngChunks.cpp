#include "vxgui/platform/codecs/PngChunks.h"

#include <algorithm>
#include <cstdio>
#include <string_view>

namespace vxgui::codecs {
namespace {

struct Keyword {
    const char* keyword;
    uint32_t id;
};
constexpr Keyword kKeywords[] = {
    {"Title", kImageTitle},    {"Author", kArtist},         {"Description", kImageDescription},
    {"Copyright", kCopyright}, {"Software", kSoftwareUsed}, {"Creation Time", kDateTime},
    {"Source", kEquipModel},   {"Comment", kUserComment},
};

uint32_t Big32(const uint8_t* at) {
    return static_cast<uint32_t>(at[0]) << 24 | static_cast<uint32_t>(at[1]) << 16 |
           static_cast<uint32_t>(at[2]) << 8 | at[3];
}
uint16_t Big16(const uint8_t* at) { return static_cast<uint16_t>(at[0] << 8 | at[1]); }

// Parts of 100000, as the file has them.
void TakeGamma(Bytes chunk, ImageProperties* to) {
    if (chunk.size() < 4 || Big32(chunk.data()) == 0) return;
    to->push_back(LongsProperty(kGamma, kPropertyRational, {100000, Big32(chunk.data())}));
}

void TakeChromaticities(Bytes chunk, ImageProperties* to) {
    if (chunk.size() < 32) return;
    const auto at = [&](size_t index) { return Big32(chunk.data() + 4 * index); };
    constexpr uint32_t k = 100000;
    to->push_back(LongsProperty(kWhitePoint, kPropertyRational, {at(0), k, at(1), k}));
    to->push_back(LongsProperty(kPrimaryChromaticities, kPropertyRational,
                                {at(2), k, at(3), k, at(4), k, at(5), k, at(6), k, at(7), k}));
}

void TakeIntent(Bytes chunk, ImageProperties* to) {
    if (!chunk.empty())
        to->push_back(BytesProperty(kRenderingIntent, kPropertyByte, chunk.first(1)));
}

void TakeResolution(Bytes chunk, ImageProperties* to) {
    if (chunk.size() < 9) return;
    to->push_back(BytesProperty(kPixelUnit, kPropertyByte, chunk.subspan(8, 1)));
    to->push_back(LongsProperty(kPixelPerUnitX, kPropertyLong, {Big32(chunk.data())}));
    to->push_back(LongsProperty(kPixelPerUnitY, kPropertyLong, {Big32(chunk.data() + 4)}));
}

void TakeHistogram(Bytes chunk, ImageProperties* to) {
    std::vector<uint16_t> counts(chunk.size() / 2);
    for (size_t i = 0; i < counts.size(); ++i) counts[i] = Big16(&chunk[2 * i]);
    to->push_back(ShortsProperty(kPaletteHistogram, counts));
}

void TakeTime(Bytes chunk, ImageProperties* to) {
    if (chunk.size() < 7) return;
    char text[32];
    const int size =
        std::snprintf(text, sizeof text, "%04d:%02d:%02d %02d:%02d:%02d", Big16(chunk.data()),
                      chunk[2], chunk[3], chunk[4], chunk[5], chunk[6]);
    to->push_back(TextProperty(
        kDateTime, {reinterpret_cast<const uint8_t*>(text), static_cast<size_t>(size)}));
}

void TakeText(Bytes chunk, ImageProperties* to) {
    const auto end = std::ranges::find(chunk, 0);
    if (end == chunk.end()) return;
    const uint32_t id = PropertyOfKeyword(std::string(chunk.begin(), end));
    if (id) to->push_back(TextProperty(id, {end + 1, chunk.end()}));
}

struct Taken {
    const char* name;
    void (*take)(Bytes chunk, ImageProperties* to);
};
constexpr Taken kTaken[] = {
    {"gAMA", TakeGamma},      {"cHRM", TakeChromaticities}, {"sRGB", TakeIntent},
    {"pHYs", TakeResolution}, {"hIST", TakeHistogram},      {"tIME", TakeTime},
    {"tEXt", TakeText},
};

void Take(std::string_view name, Bytes chunk, ImageProperties* to) {
    for (const Taken& each : kTaken) {
        if (name == each.name) each.take(chunk, to);
    }
}

}  // namespace

uint32_t PropertyOfKeyword(const std::string& keyword) {
    for (const Keyword& each : kKeywords) {
        if (keyword == each.keyword) return each.id;
    }
    return 0;
}

const char* KeywordOfProperty(uint32_t id) {
    for (const Keyword& each : kKeywords) {
        if (id == each.id) return each.keyword;
    }
    return "";
}

ImageProperties ReadPngProperties(Bytes bytes) {
    constexpr size_t kSignature = 8, kAround = 12;  // length, name and checksum
    ImageProperties properties;
    for (size_t at = kSignature; at + kAround <= bytes.size();) {
        const size_t size = Big32(&bytes[at]);
        if (size > bytes.size() - at - kAround) break;
        const std::string_view name(reinterpret_cast<const char*>(&bytes[at + 4]), 4);
        Take(name, bytes.subspan(at + 8, size), &properties);
        at += kAround + size;
    }
    return properties;
}

}  // namespace vxgui::codecs
