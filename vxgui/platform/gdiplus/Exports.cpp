#include "vxgui/platform/gdiplus.h"

namespace vxgui::gdiplus {
namespace {

template <class Function>
kernel::Export Named(const char* name, Function* function) {
    return {name, 0, reinterpret_cast<kernel::FARPROC>(function)};
}

}  // namespace

#define VXGUI_FLAT(name) Named(#name, name)

const kernel::Export kGdiplusExports[] = {
    VXGUI_FLAT(GdipBitmapLockBits),
    VXGUI_FLAT(GdipBitmapUnlockBits),
    VXGUI_FLAT(GdipCreateBitmapFromFile),
    VXGUI_FLAT(GdipCreateBitmapFromStream),
    VXGUI_FLAT(GdipCreateHBITMAPFromBitmap),
    VXGUI_FLAT(GdipDisposeImage),
    VXGUI_FLAT(GdipGetImageHeight),
    VXGUI_FLAT(GdipGetImageWidth),
    VXGUI_FLAT(GdipLoadImageFromFile),
    VXGUI_FLAT(GdiplusShutdown),
    VXGUI_FLAT(GdiplusStartup),
    {nullptr, 0, nullptr},
};

#undef VXGUI_FLAT

}  // namespace vxgui::gdiplus
