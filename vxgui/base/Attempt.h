#pragma once

#include <new>

#include "vxgui/base/Error.h"

namespace vxgui {

/// Runs a step whose failure costs that step alone. False when it raised.
template <class Step>
bool Attempt(Step&& step) {
    try {
        step();
        return true;
    } catch (const Error&) {
    } catch (const std::bad_alloc&) {
    }
    return false;
}

}  // namespace vxgui
