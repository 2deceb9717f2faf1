#pragma once

#include "vxgui/base/String.h"
#include "vxgui/platform/gdiplus_formats.h"

/// Encoders by mime type, and what is asked of them.
namespace vxgui {

/// The identifier of the encoder whose mime type is exactly this; the last of several. False, and
/// `id` unchanged, when there is none.
bool GetEncoderClsid(const String& mime, gdiplus::CLSID& id);

/// The same, looked up once an apartment for each of "image/bmp", "image/jpeg", "image/gif",
/// "image/tiff" and "image/png". A failed look-up is tried again.
bool GetCachedEncoder(const String& mime, gdiplus::CLSID& id);

/// A list of at most one parameter: the quality of a JPEG, cut to 0 to 100, or that a TIFF ends
/// with this picture. The list points to `value`, which must live as long.
void BuildEncoderParameters(gdiplus::EncoderParameters& params, const String& mime, int32_t quality,
                            int32_t& value);

}  // namespace vxgui
