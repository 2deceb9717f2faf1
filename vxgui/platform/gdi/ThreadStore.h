#pragma once

#include <cstddef>

namespace vxgui::gdi {

/// A few things that are of no use just now, which a thread keeps for the next one who asks: a
/// repaint makes and drops the same ones all the time. `Drop` ends those that are left when the
/// thread does.
template <class T, size_t kMost, void (*Drop)(T*)>
class ThreadStore {
public:
    /// Null when none is kept.
    static T* Take() {
        Store& store = TheStore();
        return store.count > 0 ? store.places[--store.count] : nullptr;
    }
    /// Takes `thing` over and drops it where there is no more room, or the thread has ended.
    static void Give(T* thing) {
        Store& store = TheStore();
        if (store.closed || store.count == kMost) return Drop(thing);
        store.places[store.count++] = thing;
    }

private:
    // Trivially destructible, so that it can be asked after its thread's destructors have run.
    struct Store {
        T* places[kMost];
        size_t count;
        bool closed;
    };
    struct Closer {
        Store& store;
        ~Closer() {
            store.closed = true;
            while (store.count > 0) Drop(store.places[--store.count]);
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
