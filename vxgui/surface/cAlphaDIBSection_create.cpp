#include <utility>

#include "vxgui/base/OutOfMemory.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/surface/DibInfo.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

bool cAlphaDIBSection::CreateDIB(gdi::HDC lHDC, int32_t lWidth, int32_t lHeight,
                                 gdi::HBITMAP& hDIB) {
    const gdi::BITMAPINFO info = DibInfo(lWidth, lHeight);
    bits_ = nullptr;
    hDIB = nullptr;
    // A height below 0 would be another order of rows, which no surface is made with.
    if (lHeight > 0) {
        hDIB = gdi::CreateDIBSection(lHDC, &info, gdi::DIB_RGB_COLORS, &bits_, nullptr, 0);
    }
    header_ = info.bmiHeader;
    bitsOwner_ = hDIB;
    return hDIB != nullptr;
}

bool cAlphaDIBSection::Create(int32_t Width, int32_t Height) try {
    ClearUp();
    hDC_ = gdi::CreateCompatibleDC(compatibleDC_);
    if (!hDC_) return false;
    if (!CreateDIB(hDC_, Width, Height, hDIB_)) {
        gdi::DeleteDC(hDC_);
        hDC_ = nullptr;
        return false;
    }
    oldBitmap_ = gdi::SelectObject(hDC_, hDIB_);
    return true;
} catch (const std::bad_alloc&) {
    return false;
}

bool cAlphaDIBSection::CreateWithCompatibleDC(int32_t Width, int32_t Height,
                                              gdi::HDC CompatibleDC) try {
    compatibleDC_ = CompatibleDC;
    return Create(Width, Height);
} catch (const std::bad_alloc&) {
    return false;
}

void cAlphaDIBSection::ClearUp() {
    CommitAdjustColor();
    Empty();
}

void cAlphaDIBSection::Empty() {
    snapshot_ = nullptr;
    flags_ = kUseDrawDib | kUseMsImag32;
    if (hDC_) {
        if (hDIB_) {
            gdi::SelectObject(hDC_, oldBitmap_);
            gdi::DeleteObject(hDIB_);
        }
        gdi::DeleteDC(hDC_);
    }
    hDC_ = nullptr;
    hDIB_ = nullptr;
    oldBitmap_ = nullptr;
    bits_ = nullptr;
    bitsOwner_ = nullptr;
    header_ = {};
    alphaState_ = AlphaState::Unknown;
}

gdi::HBITMAP cAlphaDIBSection::ExtractDib() {
    if (!hDC_) return nullptr;
    gdi::SelectObject(hDC_, oldBitmap_);
    gdi::DeleteDC(hDC_);
    hDC_ = nullptr;
    oldBitmap_ = nullptr;
    return std::exchange(hDIB_, nullptr);
}

}  // namespace vxgui
