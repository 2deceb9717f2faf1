#pragma once

#include "vxgui/platform/limits.h"

/// What every reader of pictures keeps to before it allocates.
namespace vxgui::codecs {

using DecodeLimits = PictureLimits;

/// The bounds of the calling apartment, for its host to set: a part of `ApartmentLimits`.
inline DecodeLimits& ApartmentDecodeLimits() { return ApartmentLimits().picture; }

}  // namespace vxgui::codecs
