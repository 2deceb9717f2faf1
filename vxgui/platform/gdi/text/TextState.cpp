#include <utility>

#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi_text.h"

namespace vxgui::gdi {
namespace {

/// Puts a value in its place of a context's state and answers the one before; `failed` for a
/// wrong handle.
template <class T>
T Exchange(HDC dc, T DcValues::*place, T value, T failed) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    return context ? std::exchange(context->state.*place, value) : failed;
}

template <class T>
T Read(HDC dc, T DcValues::*place, T failed) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    return context ? context->state.*place : failed;
}

constexpr int kNoExtra = INT32_MIN;  // what a failed character extra answers

}  // namespace

COLORREF SetTextColor(HDC dc, COLORREF color) {
    return Exchange(dc, &DcState::textColor, color, CLR_INVALID);
}
COLORREF GetTextColor(HDC dc) { return Read(dc, &DcState::textColor, CLR_INVALID); }

COLORREF SetBkColor(HDC dc, COLORREF color) {
    return Exchange(dc, &DcState::backColor, color, CLR_INVALID);
}
COLORREF GetBkColor(HDC dc) { return Read(dc, &DcState::backColor, CLR_INVALID); }

int SetBkMode(HDC dc, int mode) {
    if (mode != TRANSPARENT && mode != OPAQUE) return 0;
    return Exchange(dc, &DcState::backMode, mode, 0);
}
int GetBkMode(HDC dc) { return Read(dc, &DcState::backMode, 0); }

UINT SetTextAlign(HDC dc, UINT align) {
    return Exchange(dc, &DcState::textAlign, align, GDI_ERROR);
}
UINT GetTextAlign(HDC dc) { return Read(dc, &DcState::textAlign, GDI_ERROR); }

int SetTextCharacterExtra(HDC dc, int extra) {
    return Exchange(dc, &DcState::characterExtra, extra, kNoExtra);
}
int GetTextCharacterExtra(HDC dc) { return Read(dc, &DcState::characterExtra, kNoExtra); }

BOOL SetTextJustification(HDC dc, int extra, int breakCount) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context) return 0;
    context->state.breakExtra = extra;
    context->state.breakCount = breakCount;
    return 1;
}

}  // namespace vxgui::gdi
