#pragma once

#include <optional>
#include <string>

#include "vxgui/base/Variant.h"

namespace vxgui::tool {

/// What a file with a picture can be.
enum class PictureKind { Bmp, Png, Jpeg, Gif, Tiff, Tga, Surface, Bag };

/// By the first bytes, whatever the name. TGA has no mark at its start: it is known by the footer
/// of its newer files or by a name ending in .tga. None for anything else.
std::optional<PictureKind> KindOf(const ByteArray& bytes, const std::string& path);

/// As it is shown to users: "PNG", "serialized surface".
const char* NameOf(PictureKind kind);

/// The last of the path's endings in lower case and without its point; empty when there is none.
std::string EndingOf(const std::string& path);

}  // namespace vxgui::tool
