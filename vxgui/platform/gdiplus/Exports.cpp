#include "vxgui/platform/gdiplus.h"

namespace vxgui::gdiplus {
namespace {

template <class Function>
kernel::Export Named(const char* name, Function* function) {
    return {name, 0, reinterpret_cast<kernel::FARPROC>(function)};
}

}  // namespace

#define VXGUI_FLAT(name) Named(#name, name),

const kernel::Export kGdiplusExports[] = {
    VXGUI_GDIPLUS_FUNCTIONS(VXGUI_FLAT){nullptr, 0, nullptr},
};

#undef VXGUI_FLAT

}  // namespace vxgui::gdiplus
