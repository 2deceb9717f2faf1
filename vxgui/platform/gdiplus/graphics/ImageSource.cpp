#include "vxgui/platform/gdiplus/graphics/ImageSource.h"

#include "vxgui/platform/gdiplus/words/Premultiply.h"

namespace vxgui::gdiplus {
namespace {

const ColorAdjustment* AdjustmentOf(const ImageAttributes* attributes) {
    const ColorAdjustment* found = attributes ? attributes->For(ColorAdjustTypeBitmap) : nullptr;
    return found && !found->noOp && !found->IsEmpty() ? found : nullptr;
}

}  // namespace

ImageSource::ImageSource(const Bitmap& bitmap, const ImageAttributes* attributes)
    : bitmap_(bitmap), adjustment_(AdjustmentOf(attributes)) {
    if (!attributes || !attributes->wrapSet) return;
    wrap_ = attributes->wrap;
    outside_ = Premultiplied(attributes->outside);
}

void ImageSource::Read(INT x, INT y, std::span<ARGB> pixels) const {
    if (!adjustment_) {
        bitmap_.ReadPremultiplied(x, y, pixels);
        return;
    }
    bitmap_.ReadStraight(x, y, pixels);
    Adjust(*adjustment_, pixels);
    PremultiplyRow(pixels);
}

}  // namespace vxgui::gdiplus
