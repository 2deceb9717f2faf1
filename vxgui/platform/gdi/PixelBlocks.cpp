#include "vxgui/platform/gdi/PixelBlocks.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>

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
        while (count_ > 0) std::free(Remove(0).bits);
    }

    // The smallest block that serves; none when there is none.
    PixelBlock Take(size_t size) {
        size_t best = count_;
        for (size_t i = 0; i < count_; ++i) {
            if (!Serves(blocks_[i], size)) continue;
            if (best == count_ || blocks_[i].capacity < blocks_[best].capacity) best = i;
        }
        return best == count_ ? PixelBlock{} : Remove(best);
    }

    void Keep(const PixelBlock& block) {
        while (count_ == kKeptBlocks || bytes_ + block.capacity > kKeptBytes) {
            std::free(Remove(0).bits);
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

}  // namespace

PixelBlock TakePixels(size_t size) {
    if (size == 0 || size > kLargestPixelBlock) return {};
    const PixelBlock kept = TakeKept(size);
    if (kept.bits) {
        std::memset(kept.bits, 0, size);
        return kept;
    }
    auto* bits = static_cast<uint8_t*>(std::calloc(size, 1));
    return {bits, bits ? size : 0, bits != nullptr};
}

PixelBlock TakeRawPixels(size_t size) {
    if (size == 0 || size > kLargestPixelBlock) return {};
    const PixelBlock kept = TakeKept(size);
    if (kept.bits) return kept;
    auto* bits = static_cast<uint8_t*>(std::malloc(size));
    return {bits, bits ? size : 0, bits != nullptr};
}

void GivePixelsBack(const PixelBlock& block) {
    if (!block.owned) return;
    if (storeClosed || block.capacity > kKeptBytes) {
        std::free(block.bits);
    } else {
        TheStore().Keep(block);
    }
}

}  // namespace vxgui::gdi
