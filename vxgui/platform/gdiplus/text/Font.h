#pragma once

#include "vxgui/platform/gdi_types.h"
#include "vxgui/platform/gdiplus/text/FontFamily.h"

namespace vxgui::gdiplus {

/// What a font handle names. It never changes, so that clones are the same object.
class Font final : public FlatObject {
public:
    Font(Ref<FontFamily> family, REAL size, INT style, Unit unit)
        : family(std::move(family)), size(size), style(style), unit(unit) {}

    const Ref<FontFamily> family;
    const REAL size;
    const INT style;
    const Unit unit;

    /// The size in pixels of a device of `dpi`; in world coordinates for a font of that unit.
    double SizeInPixels(double dpi) const;
    /// From one base line to the next at an em of `em`.
    double LineHeight(double em) const;
};

/// The font that a log font of the drawing interface describes, in world coordinates. A face that
/// isn't there is replaced as that interface replaces it. None when there is no outline font.
Ref<Font> FontOfLogFont(const gdi::LOGFONTA& record);

}  // namespace vxgui::gdiplus
