#include "vxgui/frame/ErrorBox.h"

#include "vxgui/platform/kernel.h"

namespace vxgui {

void ShowErrorBox(const String& text) {
    constexpr UINT kStyle = kernel::MB_OK | kernel::MB_ICONERROR | kernel::MB_SETFOREGROUND;
    kernel::TheKernel().MessageBox(text, kApplicationTitle, kStyle);
}

}  // namespace vxgui
