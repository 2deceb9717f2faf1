#pragma once

#include <cairo.h>

#include <memory>

#include "vxgui/platform/gdiplus/Affine.h"
#include "vxgui/platform/gdiplus/FlatObject.h"

namespace vxgui::gdiplus {

struct PatternRelease {
    void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};
using Pattern = std::unique_ptr<cairo_pattern_t, PatternRelease>;

/// Where a brush is about to paint.
struct PatternPlace {
    Affine worldToDevice;
    GpRect device;   ///< the pixels that may be painted
    GpPoint origin;  ///< the rendering origin, where hatches begin
};

/// What a brush handle names.
class Brush : public FlatObject {
public:
    virtual BrushType Type() const = 0;
    virtual Ref<Brush> Clone() const = 0;
    /// The paint as a pattern in world coordinates: it is set as the source of a context whose
    /// user space is the world. Null when memory is out.
    virtual Pattern MakePattern(const PatternPlace& place) const = 0;
    /// True when every pixel has the same colour, which is then in `color`.
    virtual bool IsSolid(ARGB* color) const;
};

}  // namespace vxgui::gdiplus
