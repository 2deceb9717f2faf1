#pragma once

#include "vxgui/base/Ref.h"

namespace vxgui::gdiplus {

/// Base of everything that a flat handle names. Its C++ type is its kind.
class FlatObject : public Object {};

/// Enters a new object and answers its handle, which holds a reference. Handles are numbers that
/// are never used twice, so that a dead or forged one finds nothing.
void* EnterObject(Ref<FlatObject> object);
/// The object of a live handle, whatever its kind, or none.
Ref<FlatObject> FindObject(const void* handle);
/// Ends the handle; the object lives on while it is in use. False for one that isn't alive.
bool RetireObject(const void* handle);
/// Live handles, for tests that look for leaks.
size_t LiveObjectCount();

/// The object of kind `T`, or of a kind of that, which `handle` names; none for any other handle.
template <class T>
Ref<T> Find(const void* handle) {
    return Ref<T>(dynamic_cast<T*>(FindObject(handle).get()));
}

}  // namespace vxgui::gdiplus
