#pragma once

#include <optional>
#include <string>

#include "vxgui/platform/gdi_types.h"
#include "vxgui/platform/ole.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui::tool {

/// What stands before the pixels of a serialized surface. docs/formats.md has the form.
struct StoredHeader {
    uint16_t version;
    int16_t flags;
    COLORREF keyColour;
    uint32_t surfaceFlags;
    gdi::BITMAPINFOHEADER bitmap;
};

/// Whether the bytes begin as a serialized surface, plain or compressed.
bool IsStoredSurface(const ByteArray& bytes);
bool IsCompressed(const ByteArray& bytes);

/// The serialized surface in plain; a `ToolError` for a compressed one that is damaged.
ByteArray PlainBlock(const ByteArray& bytes, const std::string& path);
/// The header of a plain block. A `ToolError` when it's no header, or when the pixels that it
/// promises aren't there.
StoredHeader HeaderOf(const ByteArray& plain, const std::string& path);
/// The surface of a plain block, just as it was stored; a `ToolError` for an empty one too.
Ref<cAlphaDIBSection> SurfaceOf(const ByteArray& plain, const std::string& path);

/// A property bag's file; a `ToolError` when it can't be read.
Ref<ole::PropertyBag> BagOf(const ByteArray& bytes, const std::string& path);
/// The surface that a bag holds, as it was stored there; none when it holds none.
std::optional<ByteArray> SurfaceBlockOf(const ole::PropertyBag& bag);

}  // namespace vxgui::tool
