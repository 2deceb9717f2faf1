#pragma once

#include <cstdint>

#include "tools/vxgui/PictureKind.h"

namespace vxgui::tool {

/// The bits that a file spends on a pixel, by its header; 0 when it doesn't say. For BMP, PNG,
/// JPEG, GIF, TIFF and TGA.
int32_t DepthOf(const ByteArray& bytes, PictureKind kind);

}  // namespace vxgui::tool
