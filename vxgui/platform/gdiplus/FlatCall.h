#pragma once

#include <new>

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// True between a start-up and the shut-down of its token.
bool IsStarted();

/// Runs the body of a flat function, which answers a status; no exception leaves it.
template <class Body>
GpStatus Flat(Body body) noexcept {
    try {
        return body();
    } catch (const std::bad_alloc&) {
        return OutOfMemory;
    } catch (...) {
        return GenericError;
    }
}

/// The same for a function that creates an object: clears `result` first, and answers
/// `GdiplusNotInitialized` before the start-up.
template <class T, class Body>
GpStatus FlatCreate(T** result, Body body) noexcept {
    if (!result) return InvalidParameter;
    *result = nullptr;
    return IsStarted() ? Flat(body) : GdiplusNotInitialized;
}

}  // namespace vxgui::gdiplus
