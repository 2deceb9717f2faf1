#pragma once

#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::codecs {

bool IsJpeg(Bytes bytes);
std::unique_ptr<ImageDecoder> OpenJpeg(Bytes bytes);

}  // namespace vxgui::codecs
