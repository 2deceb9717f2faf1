#pragma once

#include "vxgui/text/LFonts.h"

namespace vxgui {

/// The font of a pool under `key`. A pool that is none is made, with a new default font under the
/// key; a pool that lacks the key answers none.
VXGUI_LOCAL Ref<LFont> FontByKey(Ref<LFonts>& pool, const String& key);

}  // namespace vxgui
