#include "vxgui/platform/codecs/JpegSegments.h"

#include <cstring>

#include "vxgui/platform/codecs/ExifReader.h"

namespace vxgui::codecs {
namespace {

constexpr uint8_t kScan = 0xDA, kEnd = 0xD9, kTables = 0xDB, kApp1 = 0xE1, kApp2 = 0xE2,
                  kComment = 0xFE;
constexpr size_t kTableSize = 64;

bool StartsWith(Bytes segment, const char* mark, size_t size) {
    return segment.size() >= size && std::memcmp(segment.data(), mark, size) == 0;
}

// Where the numbers of a table, which follow a zigzag (ITU-T T.81, figure 5), stand in its rows.
size_t ZigzagPlace(size_t index) {
    size_t row = 0, column = 0;
    for (size_t i = 0; i < index; ++i) {
        const bool up = (row + column) % 2 == 0;
        size_t& ahead = up ? column : row;
        size_t& back = up ? row : column;
        if (ahead == 7) {
            ++back;
        } else {
            ++ahead;
            if (back > 0) --back;
        }
    }
    return row * 8 + column;
}

void ReadTables(Bytes segment, ImageProperties* properties) {
    while (!segment.empty()) {
        const size_t wide = segment[0] >> 4 ? 2 : 1;
        const uint8_t number = segment[0] & 15;
        if (segment.size() < 1 + kTableSize * wide) return;
        std::vector<uint16_t> table(kTableSize);
        for (size_t i = 0; i < kTableSize; ++i) {
            const uint8_t* at = &segment[1 + i * wide];
            table[ZigzagPlace(i)] = static_cast<uint16_t>(wide == 2 ? at[0] << 8 | at[1] : at[0]);
        }
        if (number < 2) {
            properties->push_back(
                ShortsProperty(number == 0 ? kLuminanceTable : kChrominanceTable, table));
        }
        segment = segment.subspan(1 + kTableSize * wide);
    }
}

class SegmentReader {
public:
    ImageProperties Read(Bytes bytes);

private:
    void Take(uint8_t marker, Bytes segment);

    ImageProperties properties_;
    std::vector<uint8_t> profile_;
};

void SegmentReader::Take(uint8_t marker, Bytes segment) {
    constexpr size_t kExifMark = 6, kProfileMark = 14;
    if (marker == kApp1 && StartsWith(segment, "Exif\0", kExifMark)) {
        const ImageProperties exif = ReadExifProperties(segment.subspan(kExifMark));
        properties_.insert(properties_.end(), exif.begin(), exif.end());
    } else if (marker == kApp2 && StartsWith(segment, "ICC_PROFILE", 12) &&
               segment.size() > kProfileMark) {
        profile_.insert(profile_.end(), segment.begin() + kProfileMark, segment.end());
    } else if (marker == kComment) {
        properties_.push_back(TextProperty(kUserComment, segment));
    } else if (marker == kTables) {
        ReadTables(segment, &properties_);
    }
}

ImageProperties SegmentReader::Read(Bytes bytes) {
    for (size_t at = 2; at + 4 <= bytes.size() && bytes[at] == 0xFF;) {
        const uint8_t marker = bytes[at + 1];
        if (marker == 0xFF) {  // filling
            ++at;
            continue;
        }
        const size_t size = static_cast<size_t>(bytes[at + 2]) << 8 | bytes[at + 3];
        if (marker == kScan || marker == kEnd || size < 2 || size > bytes.size() - at - 2) break;
        Take(marker, bytes.subspan(at + 4, size - 2));
        at += 2 + size;
    }
    if (!profile_.empty()) {
        properties_.push_back(BytesProperty(kIccProfile, kPropertyUndefined, profile_));
    }
    return std::move(properties_);
}

}  // namespace

ImageProperties ReadJpegProperties(Bytes bytes) { return SegmentReader().Read(bytes); }

}  // namespace vxgui::codecs
