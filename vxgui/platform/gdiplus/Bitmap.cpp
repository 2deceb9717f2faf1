#include "vxgui/platform/gdiplus/Bitmap.h"

#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::gdiplus {

Ref<Bitmap> DecodeBitmap(const ByteArray& bytes) {
    std::optional<codecs::DecodedImage> image = codecs::DecodeImage(bytes);
    if (!image) return nullptr;
    return New<Bitmap>(image->header.width, image->header.height, std::move(image->pixels));
}

}  // namespace vxgui::gdiplus
