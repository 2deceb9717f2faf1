#include "vxgui/frame/modMsvfw32.h"

#include "vxgui/frame/Apartment.h"
#include "vxgui/frame/modVxCoreHlp.h"

namespace vxgui {

bool BindMsvfw32(int32_t index, corehlp::Slot stub) {
    static constexpr const char* kNames[] = {"DrawDibOpen", "DrawDibClose", "DrawDibDraw"};
    return BindModuleExport(gMsvfw32Module, "msvfw32.dll", kNames[index - 1], stub);
}

}  // namespace vxgui
