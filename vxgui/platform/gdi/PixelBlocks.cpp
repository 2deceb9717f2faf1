#include "vxgui/platform/gdi/PixelBlocks.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "vxgui/platform/gdi/PixelSource.h"
#include "vxgui/platform/limits.h"

namespace vxgui::gdi {
namespace {

// A bitmap can be dropped after its thread's store has gone; this outlives every destructor.
thread_local bool storeClosed = false;

// A small bitmap must not hold on to a block that is out of all proportion.
constexpr size_t kSmallBlock = size_t{64} << 10;
bool Serves(const PixelBlock& block, size_t size) {
    return block.capacity >= size && (block.capacity <= kSmallBlock || block.capacity / 8 <= size);
}

// The kept blocks, the one kept longest ago first.
class BlockStore {
public:
    ~BlockStore() {
        storeClosed = true;
        while (count_ > 0) PixelSource::Current().GiveBack(Remove(0).bits);
    }

    // The smallest block that serves, and of several the one kept last, which is still in the nearer
    // caches; none when there is none.
    PixelBlock Take(size_t size) {
        size_t best = count_;
        for (size_t i = 0; i < count_; ++i) {
            if (!Serves(blocks_[i], size)) continue;
            if (best == count_ || blocks_[i].capacity <= blocks_[best].capacity) best = i;
        }
        return best == count_ ? PixelBlock{} : Remove(best);
    }

    void Keep(const PixelBlock& block) {
        while (count_ == kKeptBlocks || bytes_ + block.capacity > kKeptBytes) {
            PixelSource::Current().GiveBack(Remove(0).bits);
        }
        blocks_[count_++] = block;
        bytes_ += block.capacity;
    }

private:
    PixelBlock Remove(size_t index) {
        const PixelBlock block = blocks_[index];
        std::copy(blocks_.begin() + index + 1, blocks_.begin() + count_, blocks_.begin() + index);
        --count_;
        bytes_ -= block.capacity;
        return block;
    }

    std::array<PixelBlock, kKeptBlocks> blocks_;
    size_t count_ = 0;
    size_t bytes_ = 0;
};

BlockStore& TheStore() {
    thread_local BlockStore store;
    return store;
}

PixelBlock TakeKept(size_t size) { return storeClosed ? PixelBlock{} : TheStore().Take(size); }

PixelBlock FreshBlock(size_t size, bool cleared) {
    uint8_t* const bits = PixelSource::Current().Take(size, cleared);
    return {bits, bits ? size : 0, bits != nullptr};
}

}  // namespace

PixelBlock TakePixels(size_t size) {
    if (size == 0 || size > ApartmentLimits().bitmapBytes) return {};
    const PixelBlock kept = TakeKept(size);
    if (kept.bits) {
        std::memset(kept.bits, 0, size);
        return kept;
    }
    return FreshBlock(size, true);
}

PixelBlock TakeRawPixels(size_t size) {
    if (size == 0 || size > ApartmentLimits().bitmapBytes) return {};
    const PixelBlock kept = TakeKept(size);
    if (kept.bits) return kept;
    return FreshBlock(size, false);
}

void GivePixelsBack(const PixelBlock& block) {
    if (!block.owned) return;
    if (storeClosed || block.capacity > kKeptBytes || !PixelSource::Current().IsReusable()) {
        PixelSource::Current().GiveBack(block.bits);
    } else {
        TheStore().Keep(block);
    }
}

}  // namespace vxgui::gdi
