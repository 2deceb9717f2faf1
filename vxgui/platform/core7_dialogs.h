#pragma once

#include "vxgui/base/Object.h"
#include "vxgui/base/Ref.h"
#include "vxgui/base/String.h"

/// The dialog object of the core services.
namespace vxgui::core7 {

/// The file must exist.
constexpr int32_t kFileMustExist = 4096;

class VXPLATFORM_API Dialogs : public Object {
public:
    /// Asks for a file to open. `fileName` and `filterIndex`, which counts from 1, are changed when
    /// one was chosen, and `result` becomes 1, else 0. `filter` is "name:*.a;*.b|name:*.c".
    virtual void OpenFile(String& fileName, const String& caption, const String& filter,
                          int32_t& filterIndex, const String& folder, const String& extension,
                          const String& templateName, intptr_t owner, int32_t flag, int32_t options,
                          int32_t& result) = 0;
};

/// Over the form toolkit; without one every question is as if it had been cancelled.
VXPLATFORM_API Ref<Dialogs> CreateDialogs();

}  // namespace vxgui::core7
