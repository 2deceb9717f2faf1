#pragma once

#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::codecs {

bool IsTiff(Bytes bytes);
std::unique_ptr<ImageDecoder> OpenTiff(Bytes bytes, int page = 0);
int TiffPageCount(Bytes bytes);

}  // namespace vxgui::codecs
