#include "vxgui/platform/codecs/GifEncoder.h"

#include <gif_lib.h>

#include <algorithm>
#include <memory>

namespace vxgui::codecs {
namespace {

struct FreeMap {
    void operator()(ColorMapObject* map) const { GifFreeMapObject(map); }
};
using ColorMap = std::unique_ptr<ColorMapObject, FreeMap>;

int Put(GifFileType* file, const GifByteType* bytes, int size) {
    auto* to = static_cast<Written*>(file->UserData);
    to->insert(to->end(), bytes, bytes + size);
    return size;
}

// Maps have a power of two of colours.
ColorMap MapOf(const std::vector<uint32_t>& palette) {
    int count = 2;
    while (count < static_cast<int>(palette.size())) count *= 2;
    ColorMap map(GifMakeMapObject(count, nullptr));
    for (size_t i = 0; map && i < palette.size(); ++i) {
        map->Colors[i] = {static_cast<GifByteType>(palette[i] >> 16),
                          static_cast<GifByteType>(palette[i] >> 8),
                          static_cast<GifByteType>(palette[i])};
    }
    return map;
}

bool PutTransparency(GifFileType* file, const std::vector<uint32_t>& palette) {
    const auto clear = std::ranges::find_if(palette, [](uint32_t c) { return c >> 24 < 128; });
    if (clear == palette.end()) return true;
    GraphicsControlBlock control{DISPOSAL_UNSPECIFIED, false, 0,
                                 static_cast<int>(clear - palette.begin())};
    GifByteType block[4];
    EGifGCBToExtension(&control, block);
    return EGifPutExtension(file, GRAPHICS_EXT_FUNC_CODE, sizeof block, block) == GIF_OK;
}

bool PutPicture(GifFileType* file, const PictureToWrite& picture) {
    const ColorMap map = MapOf(picture.palette);
    EGifSetGifVersion(file, true);
    if (!map ||
        EGifPutScreenDesc(file, picture.width, picture.height, 8, 0, map.get()) == GIF_ERROR ||
        !PutTransparency(file, picture.palette) ||
        EGifPutImageDesc(file, 0, 0, picture.width, picture.height, false, nullptr) == GIF_ERROR) {
        return false;
    }
    std::vector<uint8_t> row(picture.Width());
    for (int32_t y = 0; y < picture.height; ++y) {
        picture.indexes(y, row.data());
        if (EGifPutLine(file, row.data(), picture.width) == GIF_ERROR) return false;
    }
    return true;
}

}  // namespace

Written EncodeGif(const PictureToWrite& picture) {
    Written bytes;
    GifFileType* file = EGifOpen(&bytes, Put, nullptr);
    if (!file) return {};
    const bool put = PutPicture(file, picture);
    const bool closed = EGifCloseFile(file, nullptr) == GIF_OK;
    return put && closed ? std::move(bytes) : Written();
}

}  // namespace vxgui::codecs
