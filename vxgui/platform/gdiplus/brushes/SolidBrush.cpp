#include "vxgui/platform/gdiplus/brushes/SolidBrush.h"

namespace vxgui::gdiplus {
namespace {

double Share(ARGB color, int shift) { return (color >> shift & 255) / 255.0; }

}  // namespace

Pattern SolidBrush::MakePattern(const PatternPlace&) const {
    return Pattern(cairo_pattern_create_rgba(Share(color, 16), Share(color, 8), Share(color, 0),
                                             Share(color, 24)));
}

bool SolidBrush::IsSolid(ARGB* result) const {
    *result = color;
    return true;
}

}  // namespace vxgui::gdiplus
