#pragma once

#include <atomic>
#include <cstdlib>
#include <new>

/// Counts what a whole test program allocates, so that allocations anywhere below a paint
/// operation are seen. It replaces the global operators, so one source file of a program includes
/// it.
namespace vxgui::test {

inline std::atomic<int> gAllocations{0};

inline void* CountedAllocation(size_t size) {
    ++gAllocations;
    if (void* block = std::malloc(size ? size : 1)) return block;
    throw std::bad_alloc();
}

}  // namespace vxgui::test

// Inlined, they would look to the compiler like a `free` of what came from another `new`.
[[gnu::noinline]] void* operator new(size_t size) { return vxgui::test::CountedAllocation(size); }
[[gnu::noinline]] void* operator new[](size_t size) { return vxgui::test::CountedAllocation(size); }
[[gnu::noinline]] void* operator new(size_t size, const std::nothrow_t&) noexcept {
    ++vxgui::test::gAllocations;
    return std::malloc(size ? size : 1);
}
[[gnu::noinline]] void* operator new[](size_t size, const std::nothrow_t& tag) noexcept {
    return operator new(size, tag);
}
[[gnu::noinline]] void operator delete(void* block) noexcept { std::free(block); }
[[gnu::noinline]] void operator delete[](void* block) noexcept { std::free(block); }
[[gnu::noinline]] void operator delete(void* block, size_t) noexcept { std::free(block); }
[[gnu::noinline]] void operator delete[](void* block, size_t) noexcept { std::free(block); }
