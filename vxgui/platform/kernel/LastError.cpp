#include "vxgui/platform/kernel.h"

namespace vxgui::kernel {

namespace {

thread_local DWORD gLastError = 0;

}  // namespace

DWORD GetLastError() { return gLastError; }
void SetLastError(DWORD code) { gLastError = code; }

}  // namespace vxgui::kernel
