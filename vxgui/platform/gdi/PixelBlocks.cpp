#include "vxgui/platform/gdi/PixelBlocks.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace vxgui::gdi {
namespace {

// A bitmap can be dropped after its thread's store has gone; this outlives every destructor.
thread_local bool storeClosed = false;

// A small bitmap must not hold on to a block that is out of all proportion.
constexpr size_t kSmallBlock = size_t{64} << 10;
bool Serves(const PixelBlock& block, size_t size) {
    return block.bits && block.capacity >= size &&
           (block.capacity <= kSmallBlock || block.capacity / 8 <= size);
}

class BlockStore {
public:
    ~BlockStore() {
        storeClosed = true;
        for (PixelBlock& block : blocks_) Drop(block);
    }

    // The smallest block that serves; none when there is none.
    PixelBlock Take(size_t size) {
        PixelBlock* best = nullptr;
        for (PixelBlock& block : blocks_) {
            if (Serves(block, size) && (!best || block.capacity < best->capacity)) best = &block;
        }
        if (!best) return {};
        bytes_ -= best->capacity;
        return std::exchange(*best, {});
    }

    // In the place of the block that was kept longest ago.
    void Keep(const PixelBlock& block) {
        do {
            Drop(blocks_[next_]);
            next_ = (next_ + 1) % kKeptBlocks;
        } while (bytes_ + block.capacity > kKeptBytes);
        blocks_[(next_ + kKeptBlocks - 1) % kKeptBlocks] = block;
        bytes_ += block.capacity;
    }

private:
    void Drop(PixelBlock& block) {
        if (!block.bits) return;
        bytes_ -= block.capacity;
        std::free(std::exchange(block, {}).bits);
    }

    std::array<PixelBlock, kKeptBlocks> blocks_;
    size_t next_ = 0;
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
