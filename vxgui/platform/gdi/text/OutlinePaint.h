#pragma once

#include <ft2build.h>
#include FT_OUTLINE_H

#include "vxgui/platform/gdi/text/CoveragePaint.h"

namespace vxgui::gdi {

/// Paints an outline inside `clip`, straight into the target: it takes memory for the part that
/// is seen alone, however large the whole. The pen stands at (x, y); with `mono` a pixel is
/// painted whole from half coverage up. The outline is moved and put back.
void PaintOutline(FT_Library library, FT_Outline& outline, int64_t x, int64_t y, const RECT& clip,
                  bool mono, CoveragePaint& paint);

}  // namespace vxgui::gdi
