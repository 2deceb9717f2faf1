#pragma once

#include <string_view>

#include "vxgui/platform/gdi/text/RealizedFont.h"
#include "vxgui/platform/gdi/text/ShapedText.h"

namespace vxgui::gdi {

/// Shapes a line: scripts, writing directions and missing characters are taken care of. Every
/// advance is a whole number of pixels, and neighbours don't change it: a text is as wide as its
/// words and spaces together.
ShapedTextRef Shape(TextEngine& engine, RealizedFont& font, std::u16string_view text,
                    bool rightToLeft);

}  // namespace vxgui::gdi
