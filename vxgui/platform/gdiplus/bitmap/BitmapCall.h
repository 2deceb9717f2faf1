#pragma once

#include "vxgui/platform/gdiplus/Bitmap.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"

namespace vxgui::gdiplus {

/// Runs `body(bitmap)`, which answers a status, on a bitmap whose pixels are nobody else's now.
template <class Body>
GpStatus FlatOnPixels(const void* handle, Body body) noexcept {
    return FlatOn<Bitmap>(handle, [&](Bitmap& bitmap) -> GpStatus {
        return bitmap.IsLocked() ? ObjectBusy : body(bitmap);
    });
}

/// The same for what makes another object of it: `make(bitmap)` answers a reference, or none,
/// which gives `otherwise`.
template <class Handle, class Make>
GpStatus FlatCreateOf(const void* handle, Handle** result, GpStatus otherwise, Make make) noexcept {
    return FlatCreate(result, [&] {
        return FlatOnPixels(handle, [&](Bitmap& bitmap) {
            Ref<FlatObject> made = make(bitmap);
            return made ? HandOut(result, std::move(made)) : otherwise;
        });
    });
}

}  // namespace vxgui::gdiplus
