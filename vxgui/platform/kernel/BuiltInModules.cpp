#include "vxgui/platform/kernel/BuiltInModules.h"

#include "vxgui/platform/corehlp/Modules.h"
#include "vxgui/platform/gdi/Modules.h"
#include "vxgui/platform/gdiplus.h"

namespace vxgui::kernel {

std::vector<BuiltInEntry> BuiltInModules() {
    return {
        {"VxCoreHlp.dll", corehlp::kCoreHlpExports}, {"msimg32.dll", gdi::kMsImg32Exports},
        {"msvfw32.dll", gdi::kMsVfw32Exports},       {"user32.dll", gdi::kUser32Exports},
        {"gdi32.dll", gdi::kGdi32Exports},           {"GDIPLUS.DLL", gdiplus::kGdiplusExports},
    };
}

}  // namespace vxgui::kernel
