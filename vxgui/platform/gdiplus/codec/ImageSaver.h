#pragma once

#include "vxgui/platform/codecs/TiffEncoder.h"
#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/codec/SaveOptions.h"

namespace vxgui::gdiplus {

/// True for the codecs that write.
bool IsEncoder(const CLSID& codec);

/// The picture as a file of an encoder's format; empty on failure. A TIFF is written by a
/// `TiffWriter`.
ByteArray EncodeBitmap(const Bitmap& bitmap, const CLSID& encoder, const SaveOptions& options);

/// Adds the picture as a page, in the depth and compression that are asked for: without a depth the
/// picture's own, or black and white for a compression of that.
bool AddPage(codecs::TiffWriter& writer, const Bitmap& bitmap, const SaveOptions& options);

}  // namespace vxgui::gdiplus
