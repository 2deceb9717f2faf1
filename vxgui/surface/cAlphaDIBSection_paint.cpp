#include "vxgui/base/OutOfMemory.h"
#include "vxgui/frame/Apartment.h"
#include "vxgui/frame/modMsImg32.h"
#include "vxgui/frame/modMsvfw32.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/surface/DibInfo.h"
#include "vxgui/surface/cAlphaDIBSection.h"
#include "vxgui/surface/modDraw.h"

namespace vxgui {

namespace {

int32_t OrDefault(int32_t length, int32_t whole) { return length < 0 ? whole : length; }

}  // namespace

void cAlphaDIBSection::PaintPicture(gdi::HDC lHDC, int32_t lDstLeft, int32_t lDstTop,
                                    int32_t lDstWidth, int32_t lDstHeight, int32_t lSrcLeft,
                                    int32_t lSrcTop, int32_t lSrcWidth, int32_t lSrcHeight,
                                    uint32_t eRop) try {
    const int32_t w = OrDefault(lDstWidth, Width());
    const int32_t h = OrDefault(lDstHeight, Height());
    const int32_t sw = OrDefault(lSrcWidth, Width());
    const int32_t sh = OrDefault(lSrcHeight, Height());
    if (UseDrawDib()) {
        // Without bits the platform would look for them behind the header.
        const void* const bits = LiveBits();
        if (!bits) return;
        if (IsBare(header_)) {
            msvfw32::DrawDibDraw(gDrawDib, lHDC, lDstLeft, lDstTop, w, h, &header_, bits, lSrcLeft,
                                 lSrcTop, sw, sh, 0);
        } else {
            const StoredHeader info{header_, {}};
            msvfw32::DrawDibDraw(gDrawDib, lHDC, lDstLeft, lDstTop, w, h, &info.header, bits,
                                 lSrcLeft, lSrcTop, sw, sh, 0);
        }
    } else if (w == sw && h == sh) {
        gdi::BitBlt(lHDC, lDstLeft, lDstTop, w, h, hDC_, lSrcLeft, lSrcTop, eRop);
    } else {
        gdi::StretchBlt(lHDC, lDstLeft, lDstTop, w, h, hDC_, lSrcLeft, lSrcTop, sw, sh, eRop);
    }
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("cAlphaDIBSection.PaintPicture");
}

void cAlphaDIBSection::TransPaintPicture(gdi::HDC lHDC, int32_t lDstLeft, int32_t lDstTop,
                                         int32_t lDstWidth, int32_t lDstHeight, int32_t lSrcLeft,
                                         int32_t lSrcTop, int32_t lSrcWidth, int32_t lSrcHeight,
                                         int32_t crTransparent) try {
    const int32_t sw = OrDefault(lSrcWidth, Width());
    const int32_t sh = OrDefault(lSrcHeight, Height());
    // Unlike the other two, it draws at the source's size when none is given.
    const int32_t w = OrDefault(lDstWidth, sw);
    const int32_t h = OrDefault(lDstHeight, sh);
    if (UseMsImag32() && gUseSystemAlphaBlend) {
        msimg32::TransparentBlt(lHDC, lDstLeft, lDstTop, w, h, hDC_, lSrcLeft, lSrcTop, sw, sh,
                                static_cast<UINT>(crTransparent));
    } else {
        Vex_TransparentBlt(lHDC, lDstLeft, lDstTop, w, h, hDC_, lSrcLeft, lSrcTop, sw, sh,
                           crTransparent);
    }
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("cAlphaDIBSection.TransPaintPicture");
}

void cAlphaDIBSection::AlphaPaintPicture(gdi::HDC lHDC, int32_t lDstLeft, int32_t lDstTop,
                                         int32_t lDstWidth, int32_t lDstHeight, int32_t lSrcLeft,
                                         int32_t lSrcTop, int32_t lSrcWidth, int32_t lSrcHeight,
                                         uint8_t lConstantAlpha, bool bHasAlphaChannel) try {
    const int32_t w = OrDefault(lDstWidth, Width());
    const int32_t h = OrDefault(lDstHeight, Height());
    const int32_t sw = OrDefault(lSrcWidth, Width());
    const int32_t sh = OrDefault(lSrcHeight, Height());
    if (UseMsImag32() && gUseSystemAlphaBlend) {
        msimg32::AlphaBlend(lHDC, lDstLeft, lDstTop, w, h, hDC_, lSrcLeft, lSrcTop, sw, sh,
                            PackBlendFunction(lConstantAlpha, bHasAlphaChannel));
    } else {
        Vx_AlphaBlend(lHDC, lDstLeft, lDstTop, w, h, hDC_, lSrcLeft, lSrcTop, sw, sh,
                      lConstantAlpha, bHasAlphaChannel);
    }
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("cAlphaDIBSection.AlphaPaintPicture");
}

void cAlphaDIBSection::PaintByMode(gdi::HDC hDC, int32_t lDstLeft, int32_t lDstTop,
                                   int32_t lDstWidth, int32_t lDstHeight, int32_t lSrcLeft,
                                   int32_t lSrcTop, int32_t lSrcWidth, int32_t lSrcHeight,
                                   int32_t Mode) {
    switch (Mode & 0xF00) {
        case 0x100:
            return TransPaintPicture(hDC, lDstLeft, lDstTop, lDstWidth, lDstHeight, lSrcLeft,
                                     lSrcTop, lSrcWidth, lSrcHeight, TransparentColor());
        case 0x200:
            return AlphaPaintPicture(hDC, lDstLeft, lDstTop, lDstWidth, lDstHeight, lSrcLeft,
                                     lSrcTop, lSrcWidth, lSrcHeight, static_cast<uint8_t>(Mode),
                                     HasAlphaCached());
        default:
            return PaintPicture(hDC, lDstLeft, lDstTop, lDstWidth, lDstHeight, lSrcLeft, lSrcTop,
                                lSrcWidth, lSrcHeight, gdi::SRCCOPY);
    }
}

}  // namespace vxgui
