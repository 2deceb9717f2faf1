#pragma once

#include <optional>
#include <vector>

#include "vxgui/theme/lint/Finding.h"
#include "vxgui/theme/lint/KeyTable.h"

namespace vxgui::lint {

struct Verdict {
    Severity severity;
    String text;
};

/// What is wrong with a key's value as the readers take it; none when nothing is. What a number
/// refers to is not looked at.
VXGUI_LOCAL std::optional<Verdict> CheckValue(const KeyRule& rule, const String& value);

/// A named system colour: three numbers with commas or single blanks between them.
VXGUI_LOCAL std::optional<Verdict> CheckSystemColour(const String& value);

/// The integer that a reader makes of a text; none for one that is no number as a whole. A remark
/// behind a ";" doesn't count.
VXGUI_LOCAL std::optional<int32_t> WholeNumber(const String& text);

/// A list's parts as integers, 0 for what is no number, as the readers take them.
VXGUI_LOCAL std::vector<int32_t> NumbersOf(const String& list);

}  // namespace vxgui::lint
