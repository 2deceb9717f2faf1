#pragma once

#include <new>

#include "vxgui/base/Error.h"

namespace vxgui {

/// Raises error 7 with this source. It takes no memory for that when there is none: source and
/// description are then empty.
[[noreturn]] VXPLATFORM_API void RaiseOutOfMemory(const char* source);

/// Runs the body of an operation that raises: running out of memory in it becomes error 7.
template <class Body>
decltype(auto) WithinMemory(const char* source, Body&& body) {
    try {
        return body();
    } catch (const std::bad_alloc&) {
        RaiseOutOfMemory(source);
    }
}

}  // namespace vxgui
