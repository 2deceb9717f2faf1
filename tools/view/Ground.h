#pragma once

#include <cstdint>

#include "tools/vxgui/Sheet.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui::view {

/// What stands behind an item: checks, on which transparency can be seen, a colour, or a picture.
class Ground {
public:
    enum class Kind { Checks, Colour, Picture };

    Kind kind = Kind::Checks;
    uint32_t colour = 0xFFFFFFFF;   ///< 0xFFRRGGBB
    Ref<cAlphaDIBSection> picture;  ///< premultiplied; none leaves the colour alone

    void Paint(tool::Sheet& sheet) const;

private:
    void PaintPicture(tool::Sheet& sheet) const;
};

/// A ground that a user names: "checks", a colour as "#RRGGBB", else a picture's file. A
/// `ToolError` for a file that can't be read.
Ground GroundOf(const std::string& text);

}  // namespace vxgui::view
