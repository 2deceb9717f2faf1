#pragma once

#include <functional>

#include "tools/view/recolour/Recolour.h"
#include "vxgui/platform/core7.h"

namespace vxgui::view {

/// Changes the colours that a define file names, in either dialect: those of texts, shadows, the
/// palette, the system, and those that pictures are set on. Key colours stay.
void RecolourDefine(core7::DefineFile& file, core7::DefineEditor& editor, const Recolour& how);

/// The key of a section's image, or of its glyph, as 0xRRGGBB; none when it has no key colour.
KeyColours KeysOfImage(core7::DefineFile& file, const String& section);
KeyColours KeysOfGlyph(core7::DefineFile& file, const String& section);
/// The colour that a picture is set on where it is translucent, a COLORREF.
int32_t BackgroundOfImage(core7::DefineFile& file, const String& section);
int32_t BackgroundOfGlyph(core7::DefineFile& file, const String& section);

}  // namespace vxgui::view
