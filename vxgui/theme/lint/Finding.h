#pragma once

#include "vxgui/base/Export.h"
#include "vxgui/base/String.h"

namespace vxgui::lint {

enum class Severity {
    Warning,  ///< has another effect than was meant, or none
    Error,    ///< can't be read, can't be loaded or never shows
};

/// Something in a skin that its author would want to know of.
struct Finding {
    Severity severity;
    String path;
    int32_t line;    ///< from 1; 1 too where the file as a whole is meant
    int32_t column;  ///< from 1, in UTF-16 units
    String text;
};

/// "path:line:column: error: text" or the same with "warning".
VXGUI_API String Describe(const Finding& finding);

}  // namespace vxgui::lint
