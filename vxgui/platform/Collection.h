#pragma once

#include <unordered_map>
#include <vector>

#include "vxgui/base/Error.h"
#include "vxgui/base/String.h"

namespace vxgui::ole {

/// The platform's ordered, keyed, 1-based collection. Keys are optional and are compared
/// without regard to case; a key that is there already raises error 457, an unknown key error
/// 5, an index outside 1 to `Count` error 9.
template <class T>
class Collection {
public:
    int32_t Count() const { return static_cast<int32_t>(entries_.size()); }

    /// Adds at the end, under `key` if it isn't empty.
    void Add(T item, const String& key = {}) {
        const String folded = key.Lower();
        if (!folded.empty() && positions_.contains(folded)) {
            throw Error(ErrorNumber::DuplicateKey, "Collection",
                        "This key is already associated with an element of this collection");
        }
        if (!folded.empty()) positions_[folded] = entries_.size();
        entries_.push_back({std::move(item), folded});
    }

    const T& Item(int32_t index) const { return entries_[Checked(index)].item; }
    const T& Item(const String& key) const { return entries_[Position(key)].item; }

    /// The key in small letters, as keys are compared; empty for an item without one.
    const String& Key(int32_t index) const { return entries_[Checked(index)].key; }

    void Remove(int32_t index) { Erase(Checked(index)); }
    void Remove(const String& key) { Erase(Position(key)); }
    void Clear() {
        entries_.clear();
        positions_.clear();
    }

    /// The item under `key`, or a default one (none, for references) when there is none.
    T Find(const String& key) const {
        const auto at = positions_.find(key.Lower());
        return at == positions_.end() ? T() : entries_[at->second].item;
    }
    T Find(int32_t index) const {
        return index >= 1 && index <= Count() ? entries_[static_cast<size_t>(index - 1)].item : T();
    }

private:
    struct Entry {
        T item;
        String key;
    };

    size_t Checked(int32_t index) const {
        if (index < 1 || index > Count()) {
            throw Error(ErrorNumber::Subscript, "Collection", "Subscript out of range");
        }
        return static_cast<size_t>(index - 1);
    }

    size_t Position(const String& key) const {
        const auto at = positions_.find(key.Lower());
        if (at == positions_.end()) {
            throw Error(ErrorNumber::InvalidCall, "Collection", "Invalid procedure call or argument");
        }
        return at->second;
    }

    void Erase(size_t position) {
        if (!entries_[position].key.empty()) positions_.erase(entries_[position].key);
        entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(position));
        for (auto& [key, at] : positions_) at -= at > position ? 1 : 0;
    }

    std::vector<Entry> entries_;
    std::unordered_map<String, size_t> positions_;
};

}  // namespace vxgui::ole
