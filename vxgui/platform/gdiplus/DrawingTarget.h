#pragma once

#include <cairo.h>

#include "vxgui/platform/gdi/PixelRegion.h"
#include "vxgui/platform/gdiplus/words/WordRows.h"

namespace vxgui::gdiplus {

/// The pixels that a graphics draws on.
class DrawingTarget {
public:
    virtual ~DrawingTarget() = default;
    virtual INT Width() const = 0;
    virtual INT Height() const = 0;
    virtual REAL DpiX() const { return 96; }
    virtual REAL DpiY() const { return 96; }
    /// The target's own clip, besides its edges; null for none.
    virtual const gdi::PixelRegion* Clip() const { return nullptr; }
    /// Why the pixels can't be drawn on now, or Ok.
    virtual GpStatus Ready() const { return Ok; }

    /// Where the top row of the pixels stands, to tell whether an image is the target itself.
    virtual const void* Memory() const = 0;

    /// The pixels, where they are premultiplied words that may be written as they stand; else none.
    virtual WordRows Words() const { return {}; }

    /// A premultiplied 32-bit surface over the whole target, which shows its pixels within `area`;
    /// what is drawn there reaches the target at `End`. Null when memory is out.
    virtual cairo_surface_t* Begin(const GpRect& area) = 0;
    virtual void End(const GpRect& area) = 0;
    /// Sets all pixels of `area` to a straight colour, whatever they were.
    virtual void Store(const GpRect& area, ARGB color) = 0;

    /// A device context whose drawing reaches the target, at the latest when it is given back.
    /// Null when there can't be one.
    virtual gdi::HDC LendDc() = 0;
    virtual void TakeBack(gdi::HDC dc) = 0;
};

}  // namespace vxgui::gdiplus
