#pragma once

#include <string>

#include "vxgui/platform/codecs/ImageProperties.h"

namespace vxgui::codecs {

/// Gamma, colour space, resolution, time, histogram and plain texts of a PNG file.
ImageProperties ReadPngProperties(Bytes bytes);

/// The property that stands for texts of a keyword; 0 for none.
uint32_t PropertyOfKeyword(const std::string& keyword);
/// The keyword of a property; empty for none.
const char* KeywordOfProperty(uint32_t id);

}  // namespace vxgui::codecs
