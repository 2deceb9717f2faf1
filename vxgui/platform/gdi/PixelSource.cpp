#include "vxgui/platform/gdi/PixelSource.h"

#if __has_include(<sys/mman.h>)
#include <sys/mman.h>
#endif

#include <atomic>
#include <cstdlib>
#include <cstring>

namespace vxgui::gdi {
namespace {

std::atomic<PixelSource*> replaced{nullptr};

// Blocks begin at lines of the cache: a wide operation across two of them takes twice as long. What
// the heap gave is noted in front of the block; there is room, as the heap's own steps are shorter.
constexpr size_t kLine = 64;
static_assert(alignof(std::max_align_t) >= sizeof(void*));

// Large blocks begin at, and ask for, pages of 2 MiB: at those of 4 KiB the processor stops to read
// ahead and looks up each address anew.
constexpr size_t kHugePage = size_t{2} << 20;

size_t AlignmentOf(size_t size) { return size < kHugePage ? kLine : kHugePage; }

// What the last page would have beyond the block stays small ones.
void AskForHugePages([[maybe_unused]] uint8_t* bits, [[maybe_unused]] size_t size) {
#ifdef MADV_HUGEPAGE
    if (size >= kHugePage) madvise(bits, size / kHugePage * kHugePage, MADV_HUGEPAGE);
#endif
}

uint8_t* BlockIn(void* start, size_t alignment) {
    const auto place = reinterpret_cast<uintptr_t>(start);
    uint8_t* const bits = static_cast<uint8_t*>(start) + (alignment - place % alignment);
    std::memcpy(bits - sizeof start, &start, sizeof start);
    return bits;
}

void* StartOf(const uint8_t* bits) {
    void* start;
    std::memcpy(&start, bits - sizeof start, sizeof start);
    return start;
}

}  // namespace

PixelSource::~PixelSource() = default;

uint8_t* PixelSource::Take(size_t size, bool cleared) {
    const size_t alignment = AlignmentOf(size);
    if (size > SIZE_MAX - alignment) return nullptr;
    void* const start = cleared ? std::calloc(size + alignment, 1) : std::malloc(size + alignment);
    if (!start) return nullptr;
    uint8_t* const bits = BlockIn(start, alignment);
    AskForHugePages(bits, size);
    return bits;
}

void PixelSource::GiveBack(uint8_t* bits) {
    if (bits) std::free(StartOf(bits));
}

// Never destroyed: bitmaps may go while the process ends.
PixelSource& PixelSource::Current() {
    static PixelSource* const heap = new PixelSource;
    PixelSource* const source = replaced.load(std::memory_order_relaxed);
    return source ? *source : *heap;
}

void PixelSource::Replace(PixelSource& source) { replaced = &source; }

}  // namespace vxgui::gdi
