#include "vxgui/platform/core7_dialogs.h"
#include "vxgui/platform/forms.h"

namespace vxgui::core7 {
namespace {

class ToolkitDialogs final : public Dialogs {
public:
    // Whatever the options say, the file must exist: no caller wants another one.
    void OpenFile(String& fileName, const String& caption, const String& filter,
                  int32_t& filterIndex, const String&, const String&, const String&, intptr_t owner,
                  int32_t, int32_t, int32_t& result) override {
        result = 0;
        forms::Toolkit* const toolkit = forms::UsableToolkit();
        if (!toolkit) return;
        forms::OpenFileAnswer answer;
        result = toolkit->OpenFile(
            {fileName.view(), caption.view(), filter.view(), filterIndex, owner}, &answer);
        if (result == 0) return;
        fileName = answer.fileName;
        filterIndex = answer.filterIndex;
    }
};

}  // namespace

Ref<Dialogs> CreateDialogs() { return New<ToolkitDialogs>(); }

}  // namespace vxgui::core7
