#include "bench/Beside.h"
#include "bench/objects/Pictures.h"

namespace vxgui::bench {
namespace {

using namespace gdiplus;

// 32 x 32 pixels out of a straight picture of 512 x 512, with a colour matrix that greys and fades.
auto Ours() {
    auto target = std::make_shared<OurCanvas>(64, 64);
    auto source = std::make_shared<OurCanvas>(512, 512, PixelFormat32bppARGB);
    source->pixels.Set(StraightPicture(512, 512, false));
    const ColorMatrix matrix{{{0.3f, 0.3f, 0.3f, 0, 0},
                              {0.6f, 0.6f, 0.6f, 0, 0},
                              {0.1f, 0.1f, 0.1f, 0, 0},
                              {0, 0, 0, 0.5f, 0},
                              {0.1f, 0, 0, 0, 1}}};
    GpImageAttributes* created = nullptr;
    GdipCreateImageAttributes(&created);
    GdipSetImageAttributesColorMatrix(created, ColorAdjustTypeBitmap, 1, &matrix, nullptr,
                                      ColorMatrixFlagsDefault);
    const std::shared_ptr<GpImageAttributes> attributes(created, GdipDisposeImageAttributes);
    return [=] {
        GdipDrawImageRectRectI(target->graphics, source->image, 8, 8, 32, 32, 200, 100, 32, 32,
                               UnitPixel, attributes.get(), nullptr, nullptr);
    };
}

const bool kAdded = Beside("part-matrix", "32", "ours", Ours);

}  // namespace
}  // namespace vxgui::bench
