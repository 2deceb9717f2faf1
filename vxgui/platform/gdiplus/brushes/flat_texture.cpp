#include "vxgui/platform/gdiplus/Coordinates.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/brushes/TextureBrush.h"
#include "vxgui/platform/gdiplus_texture.h"

namespace vxgui::gdiplus {
namespace {

// A texture is a bitmap that is drawn by a brush: what is set for brushes counts first, then what
// is set for bitmaps.
const ColorAdjustment* AdjustmentOf(const ImageAttributes* attributes) {
    if (!attributes) return nullptr;
    const auto& forBrushes = attributes->adjustments[ColorAdjustTypeBrush];
    return forBrushes ? &*forBrushes : attributes->For(ColorAdjustTypeBitmap);
}

GpStatus Create(const Bitmap& bitmap, const GpRect& part, const ImageAttributes* attributes,
                WrapMode wrap, GpBrush** result) {
    if (bitmap.IsLocked()) return ObjectBusy;
    if (!IsWrap(wrap)) return InvalidParameter;
    if (!bitmap.Contains(part)) return OutOfMemory;
    return HandOut(result, New<TextureBrush>(bitmap, part, AdjustmentOf(attributes), wrap));
}

template <class Rect>
GpStatus CreateOfPart(GpImage* image, WrapMode wrap, const Rect& part, GpBrush** result) {
    return FlatCreate(result, [&] {
        return FlatOn<Bitmap>(image, [&](Bitmap& bitmap) {
            return Create(bitmap, RoundRect(ToFloat(part)), nullptr, wrap, result);
        });
    });
}

// Attributes without a wrap mode leave the brush its usual one.
template <class Rect>
GpStatus CreateAdjusted(GpImage* image, const GpImageAttributes* attributes, const Rect& part,
                        GpBrush** result) {
    return FlatCreate(result, [&] {
        return FlatOn<Bitmap>(image, [&](Bitmap& bitmap) {
            const Ref<ImageAttributes> found = Find<ImageAttributes>(attributes);
            if (attributes && !found) return InvalidParameter;
            const WrapMode wrap = found && found->wrapSet ? found->wrap : WrapModeTile;
            return Create(bitmap, RoundRect(ToFloat(part)), found.get(), wrap, result);
        });
    });
}

}  // namespace

extern "C" {

GpStatus GdipCreateTexture(GpImage* image, WrapMode wrapmode, GpBrush** texture) {
    return FlatCreate(texture, [&] {
        return FlatOn<Bitmap>(image, [&](Bitmap& bitmap) {
            const GpRect whole{0, 0, static_cast<INT>(bitmap.Width()),
                               static_cast<INT>(bitmap.Height())};
            return Create(bitmap, whole, nullptr, wrapmode, texture);
        });
    });
}

GpStatus GdipCreateTexture2(GpImage* image, WrapMode wrapmode, REAL x, REAL y, REAL width,
                            REAL height, GpBrush** texture) {
    return CreateOfPart(image, wrapmode, GpRectF{x, y, width, height}, texture);
}

GpStatus GdipCreateTexture2I(GpImage* image, WrapMode wrapmode, INT x, INT y, INT width, INT height,
                             GpBrush** texture) {
    return CreateOfPart(image, wrapmode, GpRect{x, y, width, height}, texture);
}

GpStatus GdipCreateTextureIA(GpImage* image, const GpImageAttributes* imageAttributes, REAL x,
                             REAL y, REAL width, REAL height, GpBrush** texture) {
    return CreateAdjusted(image, imageAttributes, GpRectF{x, y, width, height}, texture);
}

GpStatus GdipCreateTextureIAI(GpImage* image, const GpImageAttributes* imageAttributes, INT x,
                              INT y, INT width, INT height, GpBrush** texture) {
    return CreateAdjusted(image, imageAttributes, GpRect{x, y, width, height}, texture);
}

GpStatus GdipGetTextureImage(GpBrush* brush, GpImage** image) {
    return FlatCreate(image, [&] {
        return FlatOn<TextureBrush>(
            brush, [&](TextureBrush& found) { return HandOut(image, found.Image()); });
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
