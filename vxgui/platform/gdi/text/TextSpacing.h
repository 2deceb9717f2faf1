#pragma once

#include <string_view>

#include "vxgui/platform/gdi/text/ShapedText.h"

namespace vxgui::gdi {

/// What a context adds to the widths of characters.
struct TextSpacing {
    int extra = 0;               ///< after every character
    int breakExtra = 0;          ///< spread over the breaks of a line
    int breakCount = 0;          ///< the breaks that it is meant for
    int breaksBefore = 0;        ///< those of them that stand in parts of the line before this one
    const int* given = nullptr;  ///< a width for each unit, in place of the font's

    bool None() const { return extra == 0 && breakExtra == 0 && !given; }
};

/// The character that justification stretches.
constexpr char16_t kBreakCharacter = u' ';

/// `shaped` with the spacing added; itself when there is none. `text` is what it was shaped from.
ShapedTextRef WithSpacing(ShapedTextRef shaped, std::u16string_view text,
                          const TextSpacing& spacing);

}  // namespace vxgui::gdi
