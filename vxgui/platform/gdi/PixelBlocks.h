#pragma once

#include <cstddef>
#include <cstdint>

namespace vxgui::gdi {

/// Pixel memory: a block of ours, or a host's, which isn't freed.
struct PixelBlock {
    uint8_t* bits = nullptr;
    size_t capacity = 0;  ///< bytes that may be used, at least what was asked for
    bool owned = false;
};

/// A block with `size` zeroed bytes, aligned for any pixel; without bits when there is none to be
/// had, or the apartment's limit allows none. A repaint makes and drops scratch bitmaps all the
/// time, so each thread keeps the last few blocks that it gave back.
PixelBlock TakePixels(size_t size);
/// The same with bytes left as they are, for a copy that fills them all.
PixelBlock TakeRawPixels(size_t size);
void GivePixelsBack(const PixelBlock& block);

/// Holds a block until somebody takes it over.
class HeldPixels {
public:
    explicit HeldPixels(const PixelBlock& block) : block_(block) {}
    ~HeldPixels() { GivePixelsBack(block_); }
    HeldPixels(const HeldPixels&) = delete;
    HeldPixels& operator=(const HeldPixels&) = delete;

    const PixelBlock& Get() const { return block_; }
    void Release() { block_ = {}; }

private:
    PixelBlock block_;
};

/// What one thread keeps at most.
constexpr size_t kKeptBlocks = 4;
constexpr size_t kKeptBytes = size_t{16} << 20;

}  // namespace vxgui::gdi
