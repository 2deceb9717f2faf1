#include "vxgui/platform/gdi/Modules.h"

#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/gdi_text.h"

namespace vxgui::gdi {
namespace {

template <class Function>
kernel::FARPROC Address(Function* function) {
    return reinterpret_cast<kernel::FARPROC>(function);
}

}  // namespace

const kernel::Export kMsImg32Exports[] = {{"AlphaBlend", 0, Address(AlphaBlend)},
                                          {"GradientFill", 0, Address(GradientFill)},
                                          {"TransparentBlt", 0, Address(TransparentBlt)},
                                          {nullptr, 0, nullptr}};

const kernel::Export kMsVfw32Exports[] = {{"DrawDibClose", 0, Address(DrawDibClose)},
                                          {"DrawDibDraw", 0, Address(DrawDibDraw)},
                                          {"DrawDibOpen", 0, Address(DrawDibOpen)},
                                          {nullptr, 0, nullptr}};

const kernel::Export kUser32Exports[] = {{"DrawTextW", 0, Address(DrawTextW)},
                                         {"GetTabbedTextExtentW", 0, Address(GetTabbedTextExtentW)},
                                         {"TabbedTextOutW", 0, Address(TabbedTextOutW)},
                                         {nullptr, 0, nullptr}};

const kernel::Export kGdi32Exports[] = {{"ExtTextOutW", 0, Address(ExtTextOutW)},
                                        {nullptr, 0, nullptr}};

}  // namespace vxgui::gdi
