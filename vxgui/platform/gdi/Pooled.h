#pragma once

#include <new>

#include "vxgui/platform/gdi/ThreadStore.h"

namespace vxgui::gdi {

/// Has each thread keep the memory of a few freed objects of the final class `T`.
template <class T>
class Pooled {
public:
    static void* operator new(size_t size) {
        void* const place = Store::Take();
        return place ? place : ::operator new(size);
    }
    static void operator delete(void* place) { Store::Give(place); }

private:
    static void Free(void* place) { ::operator delete(place); }
    using Store = ThreadStore<void, 8, &Pooled::Free>;
};

}  // namespace vxgui::gdi
