#include "vxgui/colour/frmAdjustHLS.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

bool cAlphaDIBSection::ShowAdjustHLS() {
    const KeepAlive alive(this);
    if (!dialog_) dialog_ = New<frmAdjustHLS>();
    const Ref<frmAdjustHLS> dialog(static_cast<frmAdjustHLS*>(dialog_.get()));
    dialog->Surface(this);
    BeginAdjustColor();
    dialog->ShowModal(forms::UsableToolkit());
    if (dialog->Result()) {
        CommitAdjustColor();
    } else {
        RollbackAdjustColor();
    }
    return dialog->Result();
}

}  // namespace vxgui
