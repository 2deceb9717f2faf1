#include "vxgui/frame/VxGuiGlobal.h"

#include "vxgui/frame/Apartment.h"
#include "vxgui/frame/modMsImg32.h"
#include "vxgui/frame/modUtilities.h"
#include "vxgui/surface/modDraw.h"

namespace vxgui {

VxGuiGlobal::VxGuiGlobal() { SetUpApartment(); }
VxGuiGlobal::~VxGuiGlobal() = default;

VxGuiGlobal& Global() {
    thread_local const Ref<VxGuiGlobal> global = New<VxGuiGlobal>();
    return *global;
}

bool VxGuiGlobal::UseSystemAlphaAlphaBlend() const { return gUseSystemAlphaBlend; }
void VxGuiGlobal::UseSystemAlphaAlphaBlend(bool value) { gUseSystemAlphaBlend = value; }

int32_t VxGuiGlobal::AlphaBlend(gdi::HDC hdcDst, int32_t nXOriginDst, int32_t nYOriginDst,
                                int32_t nWidthDst, int32_t nHeightDst, gdi::HDC hdcSrc,
                                int32_t nXOriginSrc, int32_t nYOriginSrc, int32_t nWidthSrc,
                                int32_t nHeightSrc, uint8_t lConstantAlpha, bool bHasAlphaChannel) {
    if (gUseSystemAlphaBlend) {
        msimg32::AlphaBlend(hdcDst, nXOriginDst, nYOriginDst, nWidthDst, nHeightDst, hdcSrc,
                            nXOriginSrc, nYOriginSrc, nWidthSrc, nHeightSrc,
                            PackBlendFunction(lConstantAlpha, bHasAlphaChannel));
    } else {
        Vx_AlphaBlend(hdcDst, nXOriginDst, nYOriginDst, nWidthDst, nHeightDst, hdcSrc, nXOriginSrc,
                      nYOriginSrc, nWidthSrc, nHeightSrc, lConstantAlpha, bHasAlphaChannel);
    }
    return 0;
}

int32_t VxGuiGlobal::TransparentBlt(gdi::HDC hdcDst, int32_t nXOriginDst, int32_t nYOriginDst,
                                    int32_t nWidthDst, int32_t hHeightDst, gdi::HDC hdcSrc,
                                    int32_t nXOriginSrc, int32_t nYOriginSrc, int32_t nWidthSrc,
                                    int32_t nHeightSrc, int32_t cTransparentColor) {
    if (gUseSystemAlphaBlend) {
        msimg32::TransparentBlt(hdcDst, nXOriginDst, nYOriginDst, nWidthDst, hHeightDst, hdcSrc,
                                nXOriginSrc, nYOriginSrc, nWidthSrc, nHeightSrc,
                                static_cast<UINT>(cTransparentColor));
    } else {
        Vex_TransparentBlt(hdcDst, nXOriginDst, nYOriginDst, nWidthDst, hHeightDst, hdcSrc,
                           nXOriginSrc, nYOriginSrc, nWidthSrc, nHeightSrc, cTransparentColor);
    }
    return 0;
}

}  // namespace vxgui
