#pragma once

#include <cairo.h>

#include "vxgui/platform/gdiplus/Affine.h"

namespace vxgui::gdiplus {

/// The same map for cairo, whose matrices are of the same kind.
inline cairo_matrix_t CairoMatrix(const Affine& a) {
    return {a.m11, a.m12, a.m21, a.m22, a.dx, a.dy};
}

}  // namespace vxgui::gdiplus
