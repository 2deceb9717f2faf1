#include "vxgui/base/NameIndex.h"

#include <algorithm>

namespace vxgui {
namespace {

constexpr size_t kFirstSlots = 16;

}  // namespace

void NameIndex::MakeRoom() {
    if (2 * (used_ + 1) <= slots_.size()) return;
    std::vector<Slot> before(std::max(2 * slots_.size(), kFirstSlots));
    before.swap(slots_);
    for (const Slot& slot : before) {
        if (slot.place != kNone) Put(slot);
    }
}

void NameIndex::Clear() {
    std::ranges::fill(slots_, Slot());
    used_ = 0;
}

void NameIndex::Put(const Slot& slot) {
    size_t at = slot.hash & Mask();
    while (slots_[at].place != kNone) at = (at + 1) & Mask();
    slots_[at] = slot;
}

}  // namespace vxgui
