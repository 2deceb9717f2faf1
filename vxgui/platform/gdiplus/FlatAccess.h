#pragma once

#include "vxgui/platform/gdiplus/FlatCall.h"
#include "vxgui/platform/gdiplus/FlatObject.h"

namespace vxgui::gdiplus {

/// Runs `body(object)`, which answers a status, on the object of kind `T` behind a handle.
template <class T, class Body>
GpStatus FlatOn(const void* handle, Body body) noexcept {
    return Flat([&]() -> GpStatus {
        const Ref<T> found = Find<T>(handle);
        return found ? body(*found) : InvalidParameter;
    });
}

/// Stores what `get(object)` answers in `*result`.
template <class T, class Result, class Get>
GpStatus FlatGet(const void* handle, Result* result, Get get) noexcept {
    if (!result) return InvalidParameter;
    return FlatOn<T>(handle, [&](T& object) {
        *result = get(object);
        return Ok;
    });
}

/// Runs `set(object)`, which can't fail.
template <class T, class Set>
GpStatus FlatSet(const void* handle, Set set) noexcept {
    return FlatOn<T>(handle, [&](T& object) {
        set(object);
        return Ok;
    });
}

/// Ends the handle of an object of kind `T`.
template <class T>
GpStatus FlatDelete(const void* handle) noexcept {
    return FlatOn<T>(handle, [&](T&) { return RetireObject(handle) ? Ok : InvalidParameter; });
}

/// Enters a new object as the handle that a creating function hands out.
template <class Handle>
GpStatus HandOut(Handle** result, Ref<FlatObject> object) {
    *result = static_cast<Handle*>(EnterObject(std::move(object)));
    return Ok;
}

}  // namespace vxgui::gdiplus
