#include "vxgui/platform/gdiplus/brushes/SolidBrush.h"

#include "vxgui/platform/gdiplus/brushes/Patterns.h"

namespace vxgui::gdiplus {

Pattern SolidBrush::MakePattern(const PatternPlace&) const { return SolidPattern(color); }

bool SolidBrush::IsSolid(ARGB* result) const {
    *result = color;
    return true;
}

}  // namespace vxgui::gdiplus
