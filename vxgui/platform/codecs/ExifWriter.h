#pragma once

#include "vxgui/platform/codecs/ImageProperties.h"

namespace vxgui::codecs {

/// The camera's segment of a JPEG, its mark included, with all properties that are tags of TIFF or
/// EXIF; empty without any.
std::vector<uint8_t> WriteExif(const ImageProperties& properties);

}  // namespace vxgui::codecs
