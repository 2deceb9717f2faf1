#pragma once

#include "vxgui/base/Export.h"
#include "vxgui/pixels/ARGB.h"

namespace vxgui {

/// What was painted on opaque black and on opaque white alike, as a premultiplied pixel. White
/// shines through by 255 - alpha, whatever kind of blit painted it; where the channels differ, the
/// one that hides most counts.
VXPLATFORM_API ARGB Recover(ARGB onBlack, ARGB onWhite);

}  // namespace vxgui
