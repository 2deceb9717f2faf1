#pragma once

#include "vxgui/platform/codecs/ImageEncoder.h"

namespace vxgui::codecs {

/// A picture of an indexed form; its first clear colour is the transparent one. Empty on failure.
Written EncodeGif(const PictureToWrite& picture);

}  // namespace vxgui::codecs
