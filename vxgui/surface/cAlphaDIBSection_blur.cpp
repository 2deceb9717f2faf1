#include "vxgui/frame/modVxCoreHlp.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

void cAlphaDIBSection::blur(int32_t BlurWidth, int32_t BlurHeight, int32_t UseColor,
                            int32_t Color) {
    HlpBlur(LiveBits(), Width(), GetARGBArray().Rows(), BlurWidth, BlurHeight, UseColor, Color);
}

int32_t cAlphaDIBSection::GaussianBlur(int32_t radiusX, int32_t radiusY) {
    return HlpGaussianBlur(LiveBits(), 0, Width(), GetARGBArray().Rows(), radiusX, radiusY);
}

int32_t cAlphaDIBSection::GaussianBlurEx(int32_t radiusX, int32_t radiusY, int32_t x1, int32_t y1,
                                         int32_t x2, int32_t y2) {
    return HlpGaussianBlurEx(LiveBits(), 0, Width(), GetARGBArray().Rows(), radiusX, radiusY, x1,
                             y1, x2, y2);
}

}  // namespace vxgui
