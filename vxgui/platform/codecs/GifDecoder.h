#pragma once

#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::codecs {

bool IsGif(Bytes bytes);
std::unique_ptr<ImageDecoder> OpenGif(Bytes bytes);

}  // namespace vxgui::codecs
