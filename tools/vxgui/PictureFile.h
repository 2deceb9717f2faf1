#pragma once

#include <optional>
#include <string>

#include "tools/vxgui/PictureKind.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui::tool {

/// A whole file; a `ToolError` with the system's reason when it can't be read.
ByteArray ReadFile(const std::string& path);

/// The kind of a file's bytes; a `ToolError` that lists the kinds when it is none of them.
PictureKind RequiredKindOf(const ByteArray& bytes, const std::string& path);

/// The picture in a file's bytes: as stored for a surface, else with straight alpha. A
/// `ToolError` for what can't be read whole.
Ref<cAlphaDIBSection> PictureOf(const ByteArray& bytes, PictureKind kind, const std::string& path);
Ref<cAlphaDIBSection> ReadPicture(const std::string& path);

/// The kind that is written to a name with this ending: bmp, png, tga or adib. None for others.
std::optional<PictureKind> FormOf(const std::string& ending);

/// Writes a picture with straight alpha, or as it is for a serialized surface; a `ToolError` when
/// that fails.
void WritePicture(cAlphaDIBSection& surface, PictureKind form, const std::string& path);

}  // namespace vxgui::tool
