#pragma once

#include "vxgui/base/Rounding.h"

namespace vxgui {

/// Whether `start + length` passes `limit`; the sum wraps.
inline bool Passes(int32_t start, int32_t length, int32_t limit) {
    return WrapAdd(start, length) > limit;
}

/// A negative length, or one that passes the end, reaches to the end. `start` is inside.
inline int32_t CutLength(int32_t start, int32_t length, int32_t limit) {
    return length < 0 || Passes(start, length, limit) ? limit - start : length;
}

}  // namespace vxgui
