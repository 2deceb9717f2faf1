#include "tools/vxgui/PictureKind.h"

#include <algorithm>
#include <filesystem>
#include <string_view>

#include "tools/vxgui/StoredSurface.h"
#include "vxgui/image/modTGA.h"

namespace vxgui::tool {
namespace {

using namespace std::string_view_literals;

struct Mark {
    std::string_view text;
    PictureKind kind;
};

constexpr Mark kMarks[] = {
    {"\x89PNG\r\n\x1a\n"sv, PictureKind::Png},
    {"\xff\xd8\xff"sv, PictureKind::Jpeg},
    {"GIF87a"sv, PictureKind::Gif},
    {"GIF89a"sv, PictureKind::Gif},
    {"II*\0"sv, PictureKind::Tiff},
    {"MM\0*"sv, PictureKind::Tiff},
    {"BM"sv, PictureKind::Bmp},
};

// The first byte of a map, the one thing that a bag's file holds (RFC 8949, major type 5).
bool BeginsMap(const ByteArray& bytes) { return !bytes.empty() && bytes[0] >> 5 == 5; }

}  // namespace

std::optional<PictureKind> KindOf(const ByteArray& bytes, const std::string& path) {
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    for (const Mark& mark : kMarks) {
        if (text.starts_with(mark.text)) return mark.kind;
    }
    if (IsStoredSurface(bytes)) return PictureKind::Surface;
    if (EndingOf(path) == "tga" || TgaHasFooter(bytes.data(), static_cast<int32_t>(bytes.size())))
        return PictureKind::Tga;
    return BeginsMap(bytes) ? std::optional(PictureKind::Bag) : std::nullopt;
}

const char* NameOf(PictureKind kind) {
    constexpr const char* kNames[] = {
        "BMP", "PNG", "JPEG", "GIF", "TIFF", "TGA", "serialized surface", "property bag"};
    return kNames[static_cast<int>(kind)];
}

std::string EndingOf(const std::string& path) {
    std::string ending = std::filesystem::path(path).extension().string();
    if (!ending.empty()) ending.erase(0, 1);
    std::ranges::transform(ending, ending.begin(), [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    });
    return ending;
}

}  // namespace vxgui::tool
