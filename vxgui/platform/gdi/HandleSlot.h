#pragma once

#include <cstdint>

#include "vxgui/platform/gdi/Counting.h"

namespace vxgui::gdi {

class GdiObject;

/// One place of the handle table. `state` is the generation in the high bits, odd while the handle
/// is alive, and the number of references in the low ones.
struct HandleSlot {
    static constexpr int kReferenceBits = 28;
    static constexpr uint64_t kReferences = (uint64_t{1} << kReferenceBits) - 1;

    std::atomic<uint64_t> state{0};
    std::atomic<GdiObject*> object{nullptr};
    uint32_t index = 0;
    uint32_t nextFree = 0;

    void AddReference() { Add(state, uint64_t{1}); }
    void Release() {
        if ((Subtract(state, uint64_t{1}) & kReferences) == 1) Vacate();
    }

private:
    /// Nobody is left who could look at the object.
    void Vacate();
};

}  // namespace vxgui::gdi
