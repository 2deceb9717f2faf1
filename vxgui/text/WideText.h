#pragma once

#include "vxgui/frame/Stub.h"
#include "vxgui/platform/gdi_text.h"
#include "vxgui/platform/kernel.h"

/// Text reaches the platform in 16-bit units through four calls that are bound on first use, as
/// there are platforms without wide functions of their own. A call that can't be bound answers 0
/// and paints nothing.
namespace vxgui {

/// The address of a wide function: from the named library, or, on the platform family without
/// wide functions, from the companion "unicows.dll". Null when there is none.
kernel::FARPROC ResolveWideProc(const char* library, const char* name);

/// Index 0 DrawTextW, 1 ExtTextOutW, 2 TabbedTextOutW, 3 GetTabbedTextExtentW.
template <int32_t kIndex>
struct WideTextBinder {
    static bool Bind(corehlp::Slot stub);
};

/// The stubs themselves.
namespace wide {
inline constexpr Stub<WideTextBinder<0>, decltype(gdi::DrawTextW)> DrawTextW;
inline constexpr Stub<WideTextBinder<1>, decltype(gdi::ExtTextOutW)> ExtTextOutW;
inline constexpr Stub<WideTextBinder<2>, decltype(gdi::TabbedTextOutW)> TabbedTextOutW;
inline constexpr Stub<WideTextBinder<3>, decltype(gdi::GetTabbedTextExtentW)> GetTabbedTextExtentW;
}  // namespace wide

/// Lays out and paints text in a rectangle by `DrawTextFlags`; -1 is the text up to its end, or to
/// a zero in it. The result is the height; DT_CALCRECT only measures and sets the right and bottom
/// edges.
int32_t DrawTextWide(gdi::HDC hDC, const String& Text, int32_t nCount, gdi::RECT& lpRect,
                     uint32_t uFormat);
/// Paints one line as it is, with the context's character extra. Option 4 clips.
int32_t ExtTextOutWide(gdi::HDC hDC, int32_t X, int32_t Y, uint32_t Options,
                       const gdi::RECT& lpRect, const String& Text, int32_t Length);
/// Paints one line, expanding tabs from the origin.
int32_t TabbedTextOutWide(gdi::HDC hDC, int32_t X, int32_t Y, std::u16string_view text,
                          int32_t nTabOrigin);
/// Width in the low 16 bits, height in the high ones.
uint32_t GetTabbedTextExtentWide(gdi::HDC hDC, std::u16string_view text);

}  // namespace vxgui
