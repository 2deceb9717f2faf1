#pragma once

#include "vxgui/platform/gdiplus/Attributes.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"

namespace vxgui::gdiplus {

inline bool IsType(ColorAdjustType type) {
    return type >= ColorAdjustTypeDefault && type < ColorAdjustTypeCount;
}

/// Runs `change` on what a type has of its own, which may be nothing.
template <class Change>
GpStatus OnType(GpImageAttributes* handle, ColorAdjustType type, Change change) {
    return FlatOn<ImageAttributes>(handle, [&](ImageAttributes& found) {
        if (!IsType(type)) return InvalidParameter;
        change(found.adjustments[static_cast<size_t>(type)]);
        return Ok;
    });
}

/// Sets a step of a type (`set(adjustment)`) or takes it away. `valid` is looked at only when the
/// step is to be set.
template <class Set, class Clear>
GpStatus SetStep(GpImageAttributes* handle, ColorAdjustType type, BOOL enable, bool valid, Set set,
                 Clear clear) {
    if (enable && !valid) return InvalidParameter;
    return OnType(handle, type, [&](std::optional<ColorAdjustment>& own) {
        if (enable) {
            if (!own) own.emplace();
            set(*own);
        } else if (own && !own->IsEmpty()) {
            clear(*own);
            if (own->IsEmpty()) own.reset();
        }
    });
}

}  // namespace vxgui::gdiplus
