#pragma once

#include <string>
#include <vector>

#include "vxgui/base/NameIndex.h"
#include "vxgui/platform/ole/BagCoding.h"
#include "vxgui/platform/ole/SameBytes.h"

namespace vxgui::ole {

/// The names of bags that are read one after the other, each with a number. Bags of one kind have
/// the same names in the same order: what followed a name the last time is what is looked for
/// first, so that a name is compared once and not with all others. Case doesn't count.
class BagNames {
public:
    static constexpr size_t kNone = NameIndex::kNone;

    /// Begins another bag, which has no names yet.
    void Begin();
    /// Takes a decoder's next name as that of the entry at a place, and answers its number. Raises
    /// for a name that the bag has already.
    size_t Take(BagDecoder& from, size_t place);
    /// Whether a number's name is this one, letter by letter.
    bool Is(size_t number, std::string_view name) const {
        const std::string& text = names_[number].text;
        return text.size() == name.size() && SameBytes(text.data(), name.data(), name.size());
    }
    /// The place of an entry by its name; `kNone` when the bag has none.
    size_t PlaceOf(std::string_view name) const;

private:
    struct Name {
        std::string text;  ///< in small letters where it has other ones than ASCII
        size_t follower = 0;
        uint64_t bag = 0;  ///< the last one that it stood in
        size_t place = 0;  ///< in that bag
    };
    size_t NumberOf(std::string_view name) const;
    size_t KnownOrNew(std::string_view name);
    size_t Enter(std::string_view text);

    std::vector<Name> names_{1};  ///< the first stands for the beginning of a bag
    NameIndex numbers_;
    size_t last_ = 0;
    uint64_t bag_ = 0;
};

}  // namespace vxgui::ole
