#pragma once

#include <cstddef>
#include <vector>

/// Memory for the length of a call. A repaint filters pictures of the same few sizes again and
/// again, so each thread keeps the last blocks that it gave back, up to `kKeptBytes`.
namespace vxgui {

namespace scratch {

constexpr size_t kKeptBlocks = 16;
constexpr size_t kKeptBytes = size_t{4} << 20;

/// `size` bytes from a multiple of 64 on, not cleared. Running out of memory throws std::bad_alloc.
void* Take(size_t size);
/// `size` is what was asked for.
void Give(void* block, size_t size) noexcept;

template <class T>
struct Allocator {
    using value_type = T;

    Allocator() = default;
    template <class U>
    Allocator(const Allocator<U>&) {}
    T* allocate(size_t count) { return static_cast<T*>(Take(count * sizeof(T))); }
    void deallocate(T* block, size_t count) noexcept { Give(block, count * sizeof(T)); }
    bool operator==(const Allocator&) const { return true; }
};

}  // namespace scratch

/// A vector in such memory.
template <class T>
using ScratchVector = std::vector<T, scratch::Allocator<T>>;

}  // namespace vxgui
