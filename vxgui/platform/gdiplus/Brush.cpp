#include "vxgui/platform/gdiplus/Brush.h"

namespace vxgui::gdiplus {

bool Brush::IsSolid(ARGB*) const { return false; }

}  // namespace vxgui::gdiplus
