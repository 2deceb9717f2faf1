#pragma once

#include <cstddef>
#include <new>

namespace vxgui::gdi {

/// Gives class `T` a small per-thread store of freed objects: contexts and bitmaps come and go
/// with every scratch surface of a repaint.
template <class T>
class Pooled {
public:
    static void* operator new(size_t size) {
        Store& store = TheStore();
        if (size != sizeof(T) || store.count == 0) return ::operator new(size);
        return store.places[--store.count];
    }

    static void operator delete(void* place, size_t size) {
        Store& store = TheStore();
        if (size != sizeof(T) || store.closed || store.count == kMost) {
            ::operator delete(place);
        } else {
            store.places[store.count++] = place;
        }
    }

private:
    static constexpr size_t kMost = 8;
    // Trivially destructible, so that it can be asked after its thread's destructors have run.
    struct Store {
        void* places[kMost];
        size_t count;
        bool closed;
    };
    struct Closer {
        Store& store;
        ~Closer() {
            store.closed = true;
            while (store.count > 0) ::operator delete(store.places[--store.count]);
        }
    };

    static Store& TheStore() {
        thread_local Store store{};
        thread_local Closer closer{store};
        static_cast<void>(closer);
        return store;
    }
};

}  // namespace vxgui::gdi
