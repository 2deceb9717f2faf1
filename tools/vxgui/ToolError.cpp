#include "tools/vxgui/ToolError.h"

#include "vxgui/platform/core7.h"

namespace vxgui::tool {

void FailBySystem(const std::string& path, const std::string& what) {
    const uint32_t code = kernel::GetLastError();
    Fail(path, what + ": " + core7::CreateSystemInformation()->ErrorText(code).Utf8());
}

}  // namespace vxgui::tool
