#pragma once

#include <pango/pango.h>

#include <string>

#include "vxgui/platform/gdi_types.h"

namespace vxgui::gdi {

/// From this weight up a font is bold; below it is regular. There is nothing between.
constexpr LONG kBoldFrom = 550;

/// The face name as UTF-8. A comma would separate two families, and a leading "@" asks for
/// vertical forms, which the face has under its plain name.
std::string FaceName(const LOGFONTA& font);

/// The generic family that stands in for a face that isn't there.
const char* GenericFamily(const LOGFONTA& font);

/// The family, weight and slant that a logical font asks for, without a size. The caller frees it.
PangoFontDescription* DescriptionOf(const LOGFONTA& font);

/// The language whose letter forms a logical font asks for by its character set, or else the
/// apartment's code page.
PangoLanguage* LanguageOf(const LOGFONTA& font);

}  // namespace vxgui::gdi
