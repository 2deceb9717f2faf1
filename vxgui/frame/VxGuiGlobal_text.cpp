#include "vxgui/base/OutOfMemory.h"
#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/platform/gdi_text.h"
#include "vxgui/text/JustifiedText.h"
#include "vxgui/text/ShadowText.h"

namespace vxgui {
namespace {

/// The caller's rectangle, which is only written to when the call measures.
class RectangleCopy {
public:
    RectangleCopy(gdi::RECT* rect, uint32_t flags) : rect_(rect), flags_(flags), copy_(*rect) {}
    ~RectangleCopy() {
        if (flags_ & gdi::DT_CALCRECT) *rect_ = copy_;
    }
    RectangleCopy(const RectangleCopy&) = delete;
    RectangleCopy& operator=(const RectangleCopy&) = delete;

    gdi::RECT& get() { return copy_; }

private:
    gdi::RECT* rect_;
    uint32_t flags_;
    gdi::RECT copy_;
};

}  // namespace

int32_t VxGuiGlobal::DrawShadowTextEx(gdi::HDC hDC, const String& pszText, gdi::RECT* lpRect,
                                      uint32_t dwFlags, int32_t Style, int32_t cch,
                                      int32_t TextColor, int32_t ShadowColor, int32_t ShadowX,
                                      int32_t ShadowY, int32_t ShadowOffsetX,
                                      int32_t ShadowOffsetY) try {
    if (!lpRect) return 0;
    RectangleCopy rect(lpRect, dwFlags);
    DrawShadowTextByStyle(hDC, rect.get(), Style,
                          {pszText, cch, dwFlags, TextColor, ShadowColor, ShadowX, ShadowY,
                           ShadowOffsetX, ShadowOffsetY});
    return 0;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("VxGuiGlobal.DrawShadowTextEx");
}

int32_t VxGuiGlobal::DrawShadowText(gdi::HDC hDC, const String& pszText, gdi::RECT* lpRect,
                                    int32_t crText, int32_t crShadow, uint32_t dwFlags, int32_t cch,
                                    int32_t ixOffset, int32_t iyOffset, int32_t ShadowX,
                                    int32_t ShadowY) try {
    if (!lpRect) return 0;
    RectangleCopy rect(lpRect, dwFlags);
    return DrawShadowTextA(
        hDC, rect.get(),
        {pszText, cch, dwFlags, crText, crShadow, ShadowX, ShadowY, ixOffset, iyOffset});
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("VxGuiGlobal.DrawShadowText");
}

int32_t VxGuiGlobal::DrawJustifiedText(gdi::HDC hDC, const String& Text, int32_t nCount,
                                       const gdi::RECT* lpRect, int32_t Align) try {
    return lpRect ? vxgui::DrawJustifiedText(hDC, Text, nCount, *lpRect, Align) : 0;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("VxGuiGlobal.DrawJustifiedText");
}

}  // namespace vxgui
