#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/gdip/ImageSize.h"

namespace vxgui {
namespace {

constexpr int32_t kTrue = -1;

/// Attributes that scale the alpha of what is drawn; none for an alpha of 255.
class Fading {
public:
    explicit Fading(uint8_t alpha) {
        if (alpha == 255) return;
        flat::GdipCreateImageAttributes(&attributes_);
        gdiplus::ColorMatrix matrix{};
        for (int i = 0; i < 5; ++i) matrix.m[i][i] = 1;
        matrix.m[3][3] = static_cast<float>(alpha) / 255;
        flat::GdipSetImageAttributesColorMatrix(attributes_, gdiplus::ColorAdjustTypeDefault, true,
                                                &matrix, nullptr, gdiplus::ColorMatrixFlagsDefault);
    }
    ~Fading() {
        if (attributes_) flat::GdipDisposeImageAttributes(attributes_);
    }
    Fading(const Fading&) = delete;
    Fading& operator=(const Fading&) = delete;

    gdiplus::GpImageAttributes* Attributes() const { return attributes_; }

private:
    gdiplus::GpImageAttributes* attributes_ = nullptr;
};

}  // namespace

int32_t VxGuiGlobal::GdipPaintPicture(gdi::HDC hdcDst, gdiplus::GpImage* GdipLoadImage,
                                      int32_t nXOriginDst, int32_t nYOriginDst, int32_t nWidthDst,
                                      int32_t nHeightDst, int32_t nXOriginSrc, int32_t nYOriginSrc,
                                      int32_t nWidthSrc, int32_t nHeightSrc, uint8_t Alpha,
                                      int32_t) {
    gdiplus::GpGraphics* graphics = nullptr;
    if (flat::GdipCreateFromHDC(hdcDst, &graphics) != gdiplus::Ok) return 0;
    ResolveImageSizes(GdipLoadImage, nWidthDst, nHeightDst, nWidthSrc, nHeightSrc);
    const Fading fading(Alpha);
    const gdiplus::Status status =
        flat::GdipDrawImageRectRectI(graphics, GdipLoadImage, nXOriginDst, nYOriginDst, nWidthDst,
                                     nHeightDst, nXOriginSrc, nYOriginSrc, nWidthSrc, nHeightSrc,
                                     gdiplus::UnitPixel, fading.Attributes(), nullptr, nullptr);
    flat::GdipDeleteGraphics(graphics);
    return status == gdiplus::Ok ? kTrue : 0;
}

}  // namespace vxgui
