#pragma once

#include <string>

#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui::tool {

/// The picture of a TGA file, with straight alpha. A `ToolError` for what the decoder refuses, and
/// for what it would leave clear: pixels that the file ends before, and packed pictures of the
/// types 9 and 11.
Ref<cAlphaDIBSection> ReadTga(const ByteArray& bytes, const std::string& path);

/// A TGA file of a straight surface: true colour of 32 bits a pixel, the bottom row first, with
/// the footer by which it can be told without its name.
ByteArray TgaOf(cAlphaDIBSection& straight);

}  // namespace vxgui::tool
