#pragma once

#include "vxgui/platform/codecs/ImageEncoder.h"

namespace vxgui::codecs {

/// A file with a header of version 3, uncompressed, in the picture's own form. The fourth byte of
/// 32-bit pixels is their alpha, which most readers leave out.
Written EncodeBmp(const PictureToWrite& picture);

}  // namespace vxgui::codecs
