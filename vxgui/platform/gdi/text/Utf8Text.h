#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vxgui::gdi {

/// UTF-16 text as UTF-8, with the way back. What is no character that can be shaped (a control
/// character, a line or paragraph separator, a lone surrogate) stands as U+FFFD.
struct Utf8Text {
    explicit Utf8Text(std::u16string_view text);

    std::string bytes;
    /// For each byte, and for the end, the 16-bit unit that it comes from.
    std::vector<int32_t> units;
};

/// True for what has no shape of its own: it is painted as the font's missing glyph.
bool IsShapeless(char16_t unit);

}  // namespace vxgui::gdi
