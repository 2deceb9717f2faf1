#pragma once

#include <vector>

#include "vxgui/base/CaseFolding.h"

namespace vxgui {

/// Where the entries of a list stand by their names, which are compared without regard to case.
/// The names stay with the list: `nameAt(place)` answers the one at a place. Nothing is allocated
/// for a name. Names are views of UTF-16, or of bytes that `FoldedHash` tells apart, in one index
/// of one kind.
class VXPLATFORM_API NameIndex {
public:
    static constexpr size_t kNone = ~size_t{0};

    /// The place of the entry of that name, or `kNone`.
    template <class Name, class NameAt>
    size_t Find(Name name, NameAt&& nameAt) const {
        if (slots_.empty()) return kNone;
        const uint64_t hash = FoldedHash(name);
        for (size_t at = hash & Mask();; at = (at + 1) & Mask()) {
            const Slot& slot = slots_[at];
            if (slot.place == kNone) return kNone;
            if (slot.hash == hash && EqualFolded(nameAt(slot.place), name)) return slot.place;
        }
    }
    /// Takes the memory for one more name. The next `Add` takes none, so that a list that calls
    /// this before it grows never has an entry without its name.
    void MakeRoom();
    /// Adds a name that isn't there.
    template <class Name>
    void Add(Name name, size_t place) {
        MakeRoom();
        Put({FoldedHash(name), place});
        ++used_;
    }
    /// Forgets all names, but keeps the room for them.
    void Clear();

private:
    struct Slot {
        uint64_t hash = 0;
        size_t place = kNone;
    };

    size_t Mask() const { return slots_.size() - 1; }
    void Put(const Slot& slot);

    // A power of two of them, at most half of them used; empty before the first name.
    std::vector<Slot> slots_;
    size_t used_ = 0;
};

}  // namespace vxgui
