#pragma once

namespace vxgui::gdi {

/// Says in the trace, once in each apartment, that no font is installed. Everything but the glyphs
/// of a text is drawn all the same.
void TellOfMissingFonts();

}  // namespace vxgui::gdi
