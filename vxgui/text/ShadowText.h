#pragma once

#include "vxgui/base/String.h"
#include "vxgui/platform/gdi_types.h"

/// Text with a soft shadow: the text's shape is drawn on a scratch surface that is larger by a
/// margin, made a coloured alpha image, blended on the target, and the text painted on top. Under
/// DT_CALCRECT each painter only measures.
namespace vxgui {

/// What the three painters take.
struct ShadowTextArguments {
    String Text;
    int32_t cch = -1;
    uint32_t dwFormat = 0;
    int32_t crText = 0;
    int32_t crShadow = 0;  ///< a COLORREF
    int32_t ShadowX = 0;
    int32_t ShadowY = 0;
    int32_t ShadowOffsetX = 0;
    int32_t ShadowOffsetY = 0;
};

/// Style 1: a box-blurred shadow. The top byte of `crShadow` is its alpha, none given is opaque.
/// The result is the height of the text; failures are reported and don't raise.
int32_t DrawShadowTextA(gdi::HDC hDC, gdi::RECT& Rect, const ShadowTextArguments& a);
/// Style 2: a blurred black shadow. A white `crShadow` means none; any other colour is black.
int32_t DrawShadowTextBlur(gdi::HDC hDC, gdi::RECT& Rect, const ShadowTextArguments& a);
/// Style 3: a blurred coloured glow around one line, which is written twice with a tab between.
int32_t DrawShadowTextGlow(gdi::HDC hDC, gdi::RECT& Rect, const ShadowTextArguments& a);
/// Chooses among the three; any other style paints nothing, not even the text.
void DrawShadowTextByStyle(gdi::HDC hDC, gdi::RECT& Rect, int32_t Style,
                           const ShadowTextArguments& a);

}  // namespace vxgui
