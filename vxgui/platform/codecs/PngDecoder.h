#pragma once

#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::codecs {

bool IsPng(Bytes bytes);
std::unique_ptr<ImageDecoder> OpenPng(Bytes bytes);

}  // namespace vxgui::codecs
