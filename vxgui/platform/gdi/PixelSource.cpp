#include "vxgui/platform/gdi/PixelSource.h"

#include <atomic>
#include <cstdlib>

namespace vxgui::gdi {
namespace {

std::atomic<PixelSource*> replaced{nullptr};

}  // namespace

PixelSource::~PixelSource() = default;

uint8_t* PixelSource::Take(size_t size, bool cleared) {
    return static_cast<uint8_t*>(cleared ? std::calloc(size, 1) : std::malloc(size));
}

void PixelSource::GiveBack(uint8_t* bits) { std::free(bits); }

// Never destroyed: bitmaps may go while the process ends.
PixelSource& PixelSource::Current() {
    static PixelSource* const heap = new PixelSource;
    PixelSource* const source = replaced.load(std::memory_order_relaxed);
    return source ? *source : *heap;
}

void PixelSource::Replace(PixelSource& source) { replaced = &source; }

}  // namespace vxgui::gdi
