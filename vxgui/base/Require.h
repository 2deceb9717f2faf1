#pragma once

#include "vxgui/base/Error.h"
#include "vxgui/base/Ref.h"

namespace vxgui {

/// The object that an operation can't do without; none raises.
template <class T>
T& Require(const Ref<T>& object, const char* source) {
    if (!object) throw Error(ErrorNumber::ObjectNotSet, source, "Object not set");
    return *object;
}

}  // namespace vxgui
