#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

/// An allocator that fails: every `new` of the test program, and what the library takes by
/// `malloc` and `calloc` itself, pixels above all. Libraries behind it are left alone.
namespace vxgui::test {

/// While one lives, the n-th allocation of its thread fails, counted from 0, and with it all that
/// follow when `onwards` says so.
class FailingMemory {
public:
    explicit FailingMemory(size_t n, bool onwards = false);
    ~FailingMemory();
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;

    /// Whether an allocation has failed.
    static bool Happened();
};

/// Counts the allocations of its thread, and remembers which of them came first from a place: a
/// chain of calls. To fail once at each place covers what failing at each allocation would.
class CountingMemory {
public:
    CountingMemory();
    ~CountingMemory();
    CountingMemory(const CountingMemory&) = delete;
    CountingMemory& operator=(const CountingMemory&) = delete;

    static size_t Count();
    /// The numbers of the first allocation from each place, in order.
    static std::vector<size_t> FirstOfEachPlace();
};

/// Blocks that are held by the whole program now.
int64_t LiveBlocks();

}  // namespace vxgui::test
