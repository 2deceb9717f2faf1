#include "vxgui/base/OutOfMemory.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/text/ScratchText.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

constexpr int32_t kNoLimit = 32767;

/// The context that measuring is done on: the caller's, or the screen's for the length of a scope.
class ContextOrScreen {
public:
    explicit ContextOrScreen(gdi::HDC dc)
        : own_(dc ? nullptr : gdi::GetDC(nullptr)), dc_(dc ? dc : own_) {}
    ~ContextOrScreen() {
        if (own_) gdi::ReleaseDC(nullptr, own_);
    }
    ContextOrScreen(const ContextOrScreen&) = delete;
    ContextOrScreen& operator=(const ContextOrScreen&) = delete;

    gdi::HDC get() const { return dc_; }

private:
    gdi::HDC own_;
    gdi::HDC dc_;
};

}  // namespace

int32_t ThemeItem::GetTextWidthHeight(gdi::HDC hDC, const String& Text, int32_t& pWidth,
                                      int32_t& pHeight, int32_t MaxWidth, int32_t MaxHeight,
                                      uint32_t Flags, int32_t pState) const try {
    pWidth = pHeight = 0;
    gdi::RECT rect{0, 0, MaxWidth ? MaxWidth : kNoLimit, MaxHeight ? MaxHeight : kNoLimit};
    const ContextOrScreen context(hDC);
    const Ref<LFont> font = GetStateFont(pState);
    const Ref<TextStyle> style = GetStateTextStyle(pState);
    const ScopedFont selected(context.get(), font->hFont());
    DrawTextAnsi(context.get(), Text, -1, rect, Flags | DT_CALCRECT);
    // The shadow counts in every draw style, those without one too.
    pWidth = WrapAdd(rect.right, style->ShadowX);
    pHeight = WrapAdd(rect.bottom, style->ShadowY);
    return 0;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("ThemeItem.GetTextWidthHeight");
}

int32_t ThemeItem::TextWidth(gdi::HDC hDC, const String& Text, uint32_t Flags, int32_t,
                             int32_t MaxHeight, int32_t pState) const {
    int32_t width, height;
    GetTextWidthHeight(hDC, Text, width, height, 0, MaxHeight, Flags, pState);
    return width;
}

int32_t ThemeItem::TextHeight(gdi::HDC hDC, const String& Text, uint32_t Flags, int32_t MaxWidth,
                              int32_t, int32_t pState) const {
    int32_t width, height;
    GetTextWidthHeight(hDC, Text, width, height, MaxWidth, 0, Flags, pState);
    return height;
}

void ThemeItem::DrawText(gdi::HDC hDC, const String& Text, uint32_t Flags, int32_t State,
                         int32_t Left, int32_t Top, int32_t& Right, int32_t& Bottom) const try {
    const KeepAlive keep(this);
    if (Right == -1) Right = WrapAdd(Left, ImageWidth());
    if (Bottom == -1) Bottom = WrapAdd(Top, ImageHeight());
    Right = WrapSub(Right, contentMargin_.right);
    Bottom = WrapSub(Bottom, contentMargin_.bottom);
    if (State == -1) State = state_;
    Ref<LFont> font = GetStateFont(State);
    GetStateTextStyle(State)->DrawText(hDC, Text, Flags, font, WrapAdd(Left, contentMargin_.left),
                                       WrapAdd(Top, contentMargin_.top), Right, Bottom);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("ThemeItem.DrawText");
}

void ThemeItem::DrawText(gdi::HDC hDC, const String& Text, uint32_t Flags, int32_t State,
                         int32_t Left, int32_t Top) const {
    int32_t right = -1, bottom = -1;
    DrawText(hDC, Text, Flags, State, Left, Top, right, bottom);
}

}  // namespace vxgui
