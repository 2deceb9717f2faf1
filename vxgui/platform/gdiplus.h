#pragma once

/// The flat GDI+ interface, whole. It draws and decodes in software; the module name under which
/// late binding finds it is "GDIPLUS.DLL".
#include "vxgui/platform/gdiplus_attributes.h"
#include "vxgui/platform/gdiplus_brush.h"
#include "vxgui/platform/gdiplus_codecs.h"
#include "vxgui/platform/gdiplus_drawing.h"
#include "vxgui/platform/gdiplus_effects.h"
#include "vxgui/platform/gdiplus_fonts.h"
#include "vxgui/platform/gdiplus_gradient.h"
#include "vxgui/platform/gdiplus_graphics.h"
#include "vxgui/platform/gdiplus_images.h"
#include "vxgui/platform/gdiplus_matrix.h"
#include "vxgui/platform/gdiplus_path.h"
#include "vxgui/platform/gdiplus_pen.h"
#include "vxgui/platform/gdiplus_strings.h"
#include "vxgui/platform/gdiplus_texture.h"
#include "vxgui/platform/gdiplus_types.h"
#include "vxgui/platform/kernel.h"

namespace vxgui::gdiplus {

extern "C" {

/// Starts the calling process's use; creating functions answer `GdiplusNotInitialized` before.
/// Starts are counted, and each token stops one of them.
VXPLATFORM_API GpStatus GdiplusStartup(ULONG_PTR* token, const GdiplusStartupInput* input,
                                       GdiplusStartupOutput* output);
VXPLATFORM_API void GdiplusShutdown(ULONG_PTR token);

}  // extern "C"

/// Every function of the interface.
#define VXGUI_GDIPLUS_FUNCTIONS(X) \
    VXGUI_GDIPLUS_ATTRIBUTES(X)    \
    VXGUI_GDIPLUS_BRUSH(X)         \
    VXGUI_GDIPLUS_CODECS(X)        \
    VXGUI_GDIPLUS_DRAWING(X)       \
    VXGUI_GDIPLUS_EFFECTS(X)       \
    VXGUI_GDIPLUS_FONTS(X)         \
    VXGUI_GDIPLUS_GRADIENT(X)      \
    VXGUI_GDIPLUS_GRAPHICS(X)      \
    VXGUI_GDIPLUS_IMAGES(X)        \
    VXGUI_GDIPLUS_MATRIX(X)        \
    VXGUI_GDIPLUS_PATH(X)          \
    VXGUI_GDIPLUS_PEN(X)           \
    VXGUI_GDIPLUS_STRINGS(X)       \
    VXGUI_GDIPLUS_TEXTURE(X)       \
    X(GdiplusShutdown)             \
    X(GdiplusStartup)

/// Every function above by name, ended by a null address.
extern VXPLATFORM_API const kernel::Export kGdiplusExports[];

}  // namespace vxgui::gdiplus
