#include "vxgui/platform/gdi/PixelSource.h"

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

uint8_t* BlockIn(void* start) {
    const auto place = reinterpret_cast<uintptr_t>(start);
    uint8_t* const bits = static_cast<uint8_t*>(start) + (kLine - place % kLine);
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
    if (size > SIZE_MAX - kLine) return nullptr;
    void* const start = cleared ? std::calloc(size + kLine, 1) : std::malloc(size + kLine);
    return start ? BlockIn(start) : nullptr;
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
