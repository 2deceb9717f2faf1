#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>
#include <vector>

#include "vxgui/platform/known_memory.h"
#include "vxgui/platform/memory.h"

namespace vxgui::kernel {

namespace {

// Advice of Linux 5.14: brings pages in as a read or a write would, and fails where that would.
constexpr int kPopulateRead = 22;
constexpr int kPopulateWrite = 23;

/// A run of whole pages.
struct Pages {
    uintptr_t begin;
    size_t size;

    bool Populate(int advice) const {
        return madvise(reinterpret_cast<void*>(begin), size, advice) == 0;
    }
    bool AreMapped(size_t pageSize) const {
        std::vector<unsigned char> resident(size / pageSize);
        return mincore(reinterpret_cast<void*>(begin), size, resident.data()) == 0;
    }
};

Pages PagesOf(const void* block, size_t size, size_t pageSize) {
    const auto address = reinterpret_cast<uintptr_t>(block);
    const uintptr_t begin = address & ~(pageSize - 1);
    return {begin, (address - begin + size + pageSize - 1) & ~(pageSize - 1)};
}

bool SystemPopulates(size_t pageSize) {
    static char known = 0;
    static const bool populates = PagesOf(&known, 1, pageSize).Populate(kPopulateWrite);
    return populates;
}

bool IsBad(const void* block, size_t size, int advice) {
    if (size == 0 || KnownMemory::Holds(block, size)) return false;
    if (!block || size > SIZE_MAX / 2 ||
        reinterpret_cast<uintptr_t>(block) > UINTPTR_MAX / 2 - size) {
        return true;
    }
    static const auto pageSize = static_cast<size_t>(sysconf(_SC_PAGESIZE));
    const Pages pages = PagesOf(block, size, pageSize);
    // An older system only tells whether there is memory at all.
    return SystemPopulates(pageSize) ? !pages.Populate(advice) : !pages.AreMapped(pageSize);
}

}  // namespace

BOOL IsBadReadPtr(const void* block, size_t size) { return IsBad(block, size, kPopulateRead); }

BOOL IsBadWritePtr(void* block, size_t size) { return IsBad(block, size, kPopulateWrite); }

}  // namespace vxgui::kernel
