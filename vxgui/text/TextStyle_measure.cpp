#include <limits>

#include "vxgui/base/OutOfMemory.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/text/ScratchText.h"
#include "vxgui/text/TextStyle.h"
#include "vxgui/text/WideText.h"

namespace vxgui {
namespace {

constexpr int32_t kEndless = std::numeric_limits<int32_t>::max();

/// A context to measure on, with the font selected, for the length of a scope.
class MeasuringContext {
public:
    // The font first, which may raise: there is no context to give back then.
    MeasuringContext(gdi::HDC dc, Ref<LFont>& font)
        : handle_(HandleOf(font)),
          own_(dc ? nullptr : gdi::GetDC(nullptr)),
          dc_(dc ? dc : own_),
          old_(gdi::SelectObject(dc_, handle_)) {}
    ~MeasuringContext() {
        gdi::SelectObject(dc_, old_);
        if (own_) gdi::ReleaseDC(nullptr, own_);
    }
    MeasuringContext(const MeasuringContext&) = delete;
    MeasuringContext& operator=(const MeasuringContext&) = delete;

    gdi::HDC get() const { return dc_; }

private:
    static gdi::HFONT HandleOf(Ref<LFont>& font) {
        if (!font) font = New<LFont>();
        return font->hFont();
    }

    gdi::HFONT handle_;
    gdi::HDC own_;
    gdi::HDC dc_;
    gdi::HGDIOBJ old_;
};

bool Measures(int32_t drawStyle) { return drawStyle < 1 || drawStyle > 5; }

}  // namespace

uint32_t TextStyle::AlignedFlags(uint32_t flags) const {
    flags &= ~uint32_t{DT_CENTER | DT_RIGHT | DT_VCENTER | DT_BOTTOM};
    if (TextAlignHorz == TextAlignHorzCenter) flags |= DT_CENTER;
    if (TextAlignHorz == TextAlignHorzRight) flags |= DT_RIGHT;
    if (TextAlignVert == TextAlignVertCenter) flags |= DT_VCENTER;
    if (TextAlignVert == TextAlignVertBottom) flags |= DT_BOTTOM;
    return flags;
}

int32_t TextStyle::TextWidth(gdi::HDC hDC, const String& Text, uint32_t Flags, Ref<LFont>& Font,
                             int32_t) const try {
    const MeasuringContext context(hDC, Font);
    gdi::RECT rect{0, 0, kEndless, kEndless};
    // The ANSI call, on purpose: what the code page lacks measures as it comes out of it.
    DrawTextAnsi(context.get(), Text, -1, rect, AlignedFlags(Flags) | DT_CALCRECT);
    return WrapAdd(ShadowX, rect.right);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("TextStyle.TextWidth");
}

int32_t TextStyle::TextHeight(gdi::HDC hDC, const String& Text, uint32_t Flags, Ref<LFont>& Font,
                              int32_t Width) const try {
    const MeasuringContext context(hDC, Font);
    gdi::RECT rect{0, 0, Width, kEndless};
    // Draw styles 1 to 5 aren't measured, on purpose; the endless rectangle is their answer.
    if (Measures(TextStyle)) {
        DrawTextWide(context.get(), Text, -1, rect, AlignedFlags(Flags) | DT_CALCRECT);
    }
    return WrapAdd(WrapSub(ShadowY, rect.top), rect.bottom);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("TextStyle.TextHeight");
}

}  // namespace vxgui
