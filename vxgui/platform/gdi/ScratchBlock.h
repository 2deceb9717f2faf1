#pragma once

#include "vxgui/platform/gdi/PixelBlocks.h"

namespace vxgui::gdi {

/// Scratch memory for the length of one call, from the thread's kept blocks.
class ScratchBlock {
public:
    ScratchBlock() = default;
    ScratchBlock(const ScratchBlock&) = delete;
    ScratchBlock& operator=(const ScratchBlock&) = delete;
    ~ScratchBlock() { GivePixelsBack(block_); }

    /// Memory for `count` items, not cleared; null when there is none.
    template <class T>
    T* Take(size_t count) {
        GivePixelsBack(block_);
        block_ = TakeRawPixels(count * sizeof(T));
        return reinterpret_cast<T*>(block_.bits);
    }

private:
    PixelBlock block_;
};

}  // namespace vxgui::gdi
