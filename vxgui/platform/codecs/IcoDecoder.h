#pragma once

#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::codecs {

/// The image of an icon file as a picture: its own alpha, or, where it has none, clear where its
/// mask says so. (`IsIcon` is in IconFile.h.)
std::unique_ptr<ImageDecoder> OpenIco(Bytes bytes);

}  // namespace vxgui::codecs
