#include "vxgui/frame/modVxCoreHlp.h"
#include "vxgui/pixels/AlphaScan.h"
#include "vxgui/pixels/ColorKey.h"
#include "vxgui/platform/gdi_shapes.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/surface/PixelRectangle.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

Variant cAlphaDIBSection::SetTransColor(int32_t Color) {
    const std::span<ARGB> pixels = Pixels();
    HlpSetTransColor(pixels.data(), Color, static_cast<int32_t>(pixels.size_bytes()), 0, 255, 1);
    return {};
}

Variant cAlphaDIBSection::SetTransColor2(int32_t Color) {
    const std::span<ARGB> pixels = Pixels();
    HlpSetTransColor(pixels.data(), Color, static_cast<int32_t>(pixels.size_bytes()), 0, 255, 0);
    return {};
}

// A member of the interface that never had an effect.
Variant cAlphaDIBSection::SetTransColor3(int32_t, int32_t) { return {}; }

namespace {

void CutOut(gdi::HRGN region, const gdi::RECT& run) {
    if (run.left >= run.right) return;
    const gdi::HRGN cut = gdi::CreateRectRgnIndirect(&run);
    gdi::CombineRgn(region, region, cut, gdi::RGN_DIFF);
    gdi::DeleteObject(cut);
}

}  // namespace

gdi::HRGN cAlphaDIBSection::GetMaskRgn(int32_t TransColor) {
    if (!bits_) return gdi::CreateRectRgn(0, 0, 0, 0);
    const gdi::HRGN region = gdi::CreateRectRgn(0, 0, Width(), Height());
    for (int32_t y = 0; y < Height(); ++y) {
        gdi::RECT run{0, y, 0, y + 1};
        for (int32_t x = 0; x < Width(); ++x) {
            if (gdi::GetPixel(hDC_, x, y) == static_cast<COLORREF>(TransColor)) {
                run.right = x + 1;
            } else {
                CutOut(region, run);
                run.left = x + 1;
            }
        }
        CutOut(region, run);
    }
    return region;
}

bool cAlphaDIBSection::HasAlphaChannel(int32_t xStart, int32_t yStart, int32_t xEnd, int32_t yEnd) {
    const ARGBArray pixels = GetARGBArray();
    if (pixels.Rows() == 0) return false;
    // The reference is the first pixel in memory, whatever the rectangle is.
    const uint8_t reference = pixels(0, 0).Alpha;
    if (reference != 0 && reference != 255) return true;
    const PixelRectangle area(Width(), Height(), xStart, yStart, xEnd, yEnd);
    for (int32_t row = area.lowRow; row <= area.highRow; ++row) {
        if (HasOtherAlpha(pixels.Run(row, area.left, area.right), reference)) return true;
    }
    return false;
}

bool cAlphaDIBSection::HasAlphaCached() {
    if (alphaState_ == AlphaState::Unknown) {
        alphaState_ = HasAlphaChannel(0, 0, -1, -1) ? AlphaState::Yes : AlphaState::No;
    }
    return alphaState_ == AlphaState::Yes;
}

void cAlphaDIBSection::MaskFromColor(int32_t colour) {
    MaskByColor(Pixels(), static_cast<uint32_t>(colour));
}

}  // namespace vxgui
