#pragma once

#include "vxgui/base/Error.h"

namespace vxgui {

/// What is wrong with a skin's files. The description has a line for each thing,
/// `file:line:column: error: text`, and what was expected; it names no other source.
class VXGUI_API SkinError : public Error {
public:
    explicit SkinError(const String& lines);
    ~SkinError() override;
};

/// Raises one for a file as a whole.
[[noreturn]] VXGUI_LOCAL void RefuseSkin(const String& path, const String& text);

}  // namespace vxgui
