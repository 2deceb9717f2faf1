#pragma once

#include <atomic>

#if __has_include(<sys/single_threaded.h>)
#include <sys/single_threaded.h>
#endif

/// Counts that several threads may change, and that cost no locked operation while the process has
/// one thread alone: a blit changes a dozen of them.
namespace vxgui::gdi {

inline bool IsSoleThread() {
#if __has_include(<sys/single_threaded.h>)
    return __libc_single_threaded;
#else
    return false;
#endif
}

/// `fetch_add`. The answer is what was there before.
template <class T>
T Add(std::atomic<T>& count, T by) {
    if (!IsSoleThread()) return count.fetch_add(by);
    const T before = count.load(std::memory_order_relaxed);
    count.store(static_cast<T>(before + by), std::memory_order_relaxed);
    return before;
}

template <class T>
T Subtract(std::atomic<T>& count, T by) {
    return Add(count, static_cast<T>(T{0} - by));
}

/// `compare_exchange`: what is there becomes `wanted` if it is `expected`, else `expected` becomes
/// what is there.
template <class T>
bool Exchange(std::atomic<T>& place, T& expected, T wanted) {
    if (!IsSoleThread()) return place.compare_exchange_strong(expected, wanted);
    const T before = place.load(std::memory_order_relaxed);
    if (before != expected) {
        expected = before;
        return false;
    }
    place.store(wanted, std::memory_order_relaxed);
    return true;
}

}  // namespace vxgui::gdi
