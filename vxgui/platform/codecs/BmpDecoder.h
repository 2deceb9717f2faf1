#pragma once

#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::codecs {

/// What becomes of the fourth byte of 32-bit pixels whose file declares no alpha: it is no
/// alpha (the pixels are opaque), or it is kept as stored.
enum class FourthByte { Opaque, Kept };

bool IsBmp(Bytes bytes);
std::unique_ptr<ImageDecoder> OpenBmp(Bytes bytes, FourthByte fourth = FourthByte::Opaque);

}  // namespace vxgui::codecs
