#pragma once

#include "vxgui/platform/codecs/ImageProperties.h"

namespace vxgui::codecs {

/// EXIF, the comment, the colour profile and the two quantization tables of a JPEG file.
ImageProperties ReadJpegProperties(Bytes bytes);

}  // namespace vxgui::codecs
