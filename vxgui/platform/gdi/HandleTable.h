#pragma once

#include <memory>

#include "vxgui/platform/gdi/GdiObject.h"

namespace vxgui::gdi {

/// The process-wide table of handles. A handle is a slot's index and generation, never an
/// address: a stale or forged one fails without a memory access beyond the table. Look-up takes
/// no lock; entering and removing take one where the thread has no place of its own at hand.
class HandleTable {
public:
    /// Enters `object`; the result is its first counted reference, besides the handle's own.
    /// Null, with the object dropped, when the table is full.
    static GdiObject* Enter(std::unique_ptr<GdiObject> object);
    /// The object of a live handle, with a reference counted for the caller; null for others.
    static GdiObject* Acquire(const void* handle);
    /// Ends the handle; the object lives on while it has references. False when it had ended.
    static bool Retire(GdiObject& object);

    /// Live handles, for tests that look for leaks.
    static size_t LiveCount();
};

/// Enters a new object, under a handle of its own. Null when the table is full.
template <class T>
GdiRef<T> Enter(std::unique_ptr<T> object) {
    T* entered = static_cast<T*>(HandleTable::Enter(std::move(object)));
    return GdiRef<T>::Adopt(entered);
}

/// The object of kind `T` that `handle` names; null for a stale, wrong or forged handle.
template <class T>
GdiRef<T> Find(const void* handle) {
    GdiObject* found = HandleTable::Acquire(handle);
    if (!found) return nullptr;
    if (found->Kind() == T::kKind) return GdiRef<T>::Adopt(static_cast<T*>(found));
    found->Release();
    return nullptr;
}

/// The object of any kind that `handle` names.
inline GdiRef<GdiObject> FindAny(const void* handle) {
    return GdiRef<GdiObject>::Adopt(HandleTable::Acquire(handle));
}

}  // namespace vxgui::gdi
