#pragma once

#include <string>

#include "tools/vxgui/PictureKind.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui::tool {

/// The first frame of a BMP, PNG, JPEG, GIF or TIFF file, with straight alpha; a `ToolError` when
/// it can't be decoded whole.
Ref<cAlphaDIBSection> DecodeImage(const ByteArray& bytes, PictureKind kind,
                                  const std::string& path);

}  // namespace vxgui::tool
