#pragma once

#include "vxgui/theme/NineSlice.h"

namespace vxgui {

/// The span without its margins; it may come out empty or negative.
VXGUI_LOCAL Span Deflate(Span span, int32_t nearMargin, int32_t farMargin);

/// Where something of `size` starts along a span: `place` 1 in the middle, 2 at the far end, any
/// other at the near one. What is larger than the span sticks out.
VXGUI_LOCAL int32_t AlignAlong(Span span, int32_t size, int32_t place);

}  // namespace vxgui
