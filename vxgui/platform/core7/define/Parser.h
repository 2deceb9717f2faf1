#pragma once

#include "vxgui/platform/core7/define/Store.h"

namespace vxgui::core7 {

/// What became of a text.
struct ParsedDefine {
    DefineStore store;
    std::vector<DefineProblem> problems;
    bool readable = true;  ///< false when it went beyond the limits; the store is then empty
};

ParsedDefine ParseDefineText(std::u16string_view text, const DefineLimits& limits);

}  // namespace vxgui::core7
