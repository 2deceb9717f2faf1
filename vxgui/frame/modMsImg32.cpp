#include "vxgui/frame/modMsImg32.h"

#include "vxgui/frame/Apartment.h"
#include "vxgui/frame/modVxCoreHlp.h"

namespace vxgui {

bool BindMsImg32(int32_t index, corehlp::Slot stub) {
    static constexpr const char* kNames[] = {"AlphaBlend", "TransparentBlt", "GradientFill",
                                             "GradientFill"};
    return BindModuleExport(gMsImg32Module, "msimg32.dll", kNames[index - 1], stub);
}

}  // namespace vxgui
