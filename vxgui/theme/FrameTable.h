#pragma once

#include <array>
#include <cstdint>

#include "vxgui/base/Export.h"
#include "vxgui/base/Variant.h"

namespace vxgui {

/// Which frame of a strip belongs to which state.
struct FrameTable {
    static constexpr int32_t kNoFrame = 255;
    static constexpr int32_t kStates = 9;

    int32_t order = 1;  ///< -1 for `frames`, else an E_FRAMEORDER
    std::array<uint8_t, kStates> frames{0, 1, 2, 3, 4, 5, 6, 7, 8};

    /// The frame that the order names, whether the strip has it or not. 0 for what is no state
    /// and for an unknown order.
    VXGUI_LOCAL int32_t RawFrame(int32_t state) const;
    /// Takes the elements of an array: negative numbers write 255, numbers below 256 themselves;
    /// all else leaves its entry. What is no array changes nothing.
    VXGUI_LOCAL void Assign(const Variant& list);
};

/// The state that a state without a frame of its own borrows from; -1 when there is none.
VXGUI_LOCAL int32_t BorrowedState(int32_t state);

}  // namespace vxgui
