#pragma once

#include <string>
#include <vector>

#include "vxgui/platform/gdi/text/DrawTextLines.h"

namespace vxgui::gdi {

/// Units [from, to) of a line that give way to "...".
struct TextCut {
    size_t from;
    size_t to;
};

/// Which of the ellipses a line may get.
struct EllipsisWish {
    bool path = false;   ///< in the middle, for what lies before the last "\" or "/"
    bool end = false;    ///< at the end
    bool force = false;  ///< at the end even when the line fits, for text that follows
};

constexpr std::u16string_view kDots = u"...";

/// The cuts, ascending, after which the line fits `width` as far as it can.
std::vector<TextCut> FindCuts(const DrawTextLines& lines, const TextSetup& setup,
                              std::u16string_view line, int64_t width, const EllipsisWish& wish);

/// The line with its cuts made.
std::u16string WithCuts(std::u16string_view line, const std::vector<TextCut>& cuts);

/// The place in the cut line of a unit of the whole one; npos for one that was cut away.
size_t PlaceAfterCuts(size_t unit, const std::vector<TextCut>& cuts);

}  // namespace vxgui::gdi
