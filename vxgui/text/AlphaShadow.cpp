#include "vxgui/text/AlphaShadow.h"

#include <span>

#include "vxgui/frame/Report.h"
#include "vxgui/pixels/Shadow.h"
#include "vxgui/platform/memory.h"

namespace vxgui {
namespace {

constexpr ErrorReporter ReportError{"modDraw"};
constexpr uint8_t kAlphaWhenNoneIsGiven = 192;

std::span<ARGB> PixelsOf(void* bits, int32_t w, int32_t h) {
    if (!bits || w < 1 || h < 1) return {};
    return {static_cast<ARGB*>(bits), size_t(w) * h};
}

}  // namespace

void MakeAlphaShadowXP(void* Bits, int32_t W, int32_t H, int32_t ShadowX, int32_t ShadowY,
                       const uint8_t (&Colour)[4]) {
    ReportError.Guard("Public Sub MakeAlphaShadowXP", [&] {
        const ARGB color{Colour[0], Colour[1], Colour[2], Colour[3]};
        BoxShadow(PixelsOf(Bits, W, H), W, H, ShadowX, ShadowY, color);
    });
}

void MakeAlphaShadow2(void* Bits, int32_t W, int32_t H, int32_t ShadowX, int32_t ShadowY,
                      int32_t Colour) {
    ReportError.Guard("Public Sub MakeAlphaShadow2", [&] {
        ARGB color = ARGBFromValue(Colour);
        if (color.Alpha == 0) color.Alpha = kAlphaWhenNoneIsGiven;
        ForwardShadow(PixelsOf(Bits, W, H), W, H, ShadowX, ShadowY, color);
    });
}

void MaskFromBits(Coverage& Mask, const void* Bits, int32_t W, int32_t H) {
    Mask = {};
    if (W < 1 || H < 1 || kernel::IsBadReadPtr(Bits, size_t(W) * H * sizeof(ARGB))) return;
    Mask = CoverageOfBlue({static_cast<const ARGB*>(Bits), size_t(W) * H}, W, H);
}

void PaintFromMask(const Coverage& Mask, void* Bits, int32_t W, int32_t H, int32_t Colour) {
    PaintCoverage(Mask, PixelsOf(Bits, W, H), ARGBFromValue(Colour));
}

}  // namespace vxgui
