#pragma once

#include "vxgui/platform/codecs/ImageEncoder.h"

namespace vxgui::codecs {

/// Over black where the picture is transparent; shades of grey where the palette has no others.
/// `quality` is 0 to 100. Its camera's properties are written as EXIF. Empty on failure.
Written EncodeJpeg(const PictureToWrite& picture, int quality);

}  // namespace vxgui::codecs
