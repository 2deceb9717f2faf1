#pragma once

#include "vxgui/platform/core7.h"
#include "vxgui/theme/skin/SkinError.h"

namespace vxgui {

/// Gathers what is wrong with a skin, a line for each: `file:line:column: error: text`.
class VXGUI_LOCAL SkinReport {
public:
    /// A position without a line means the file as a whole.
    void Add(const String& path, core7::DefinePosition at, const String& text);
    /// What the reader of a define file couldn't take.
    void AddProblems(const core7::DefineFile& file);

    [[noreturn]] void Throw() const { throw SkinError(lines_); }
    void ThrowIfAny() const {
        if (!lines_.empty()) Throw();
    }

private:
    String lines_;
};

/// An item that names a picture must have got it; what is wrong with one that hasn't is reported
/// at the key, or at the section where a key left out means a picture of that name.
VXGUI_LOCAL void CheckPicture(const String& path, core7::DefinePosition at, const String& folder,
                              const String& name, bool loaded, SkinReport& report);

}  // namespace vxgui
