#pragma once

#include <vector>

#include "vxgui/base/Error.h"
#include "vxgui/base/NameIndex.h"
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
        if (!key.empty() && PlaceOf(key) != NameIndex::kNone) {
            throw Error(ErrorNumber::DuplicateKey, "Collection",
                        "This key is already associated with an element of this collection");
        }
        Append({std::move(item), key.Lower()});
    }

    /// Adds at the end. An item that stands under the key already is taken away first.
    void AddReplacing(T item, const String& key) {
        Entry entry{std::move(item), key.Lower()};  // the key may be that of the entry that goes
        const size_t before = key.empty() ? NameIndex::kNone : PlaceOf(key);
        if (before != NameIndex::kNone) Erase(before);
        Append(std::move(entry));
    }

    const T& Item(int32_t index) const { return entries_[Checked(index)].item; }
    const T& Item(const String& key) const { return entries_[Position(key)].item; }

    /// The key in small letters, as keys are compared; empty for an item without one.
    const String& Key(int32_t index) const { return entries_[Checked(index)].key; }

    bool Contains(int32_t index) const { return index >= 1 && index <= Count(); }
    bool Contains(const String& key) const { return PlaceOf(key) != NameIndex::kNone; }

    void Remove(int32_t index) { Erase(Checked(index)); }
    void Remove(const String& key) { Erase(Position(key)); }
    void Clear() {
        entries_.clear();
        positions_.Clear();
    }

    /// The item under `key`, or a default one (none, for references) when there is none.
    T Find(const String& key) const {
        const size_t at = PlaceOf(key);
        return at == NameIndex::kNone ? T() : entries_[at].item;
    }
    T Find(int32_t index) const {
        return Contains(index) ? entries_[static_cast<size_t>(index - 1)].item : T();
    }

private:
    struct Entry {
        T item;
        String key;
    };

    size_t Checked(int32_t index) const {
        if (!Contains(index)) {
            throw Error(ErrorNumber::Subscript, "Collection", "Subscript out of range");
        }
        return static_cast<size_t>(index - 1);
    }

    // Memory is taken before anything changes.
    void Append(Entry entry) {
        if (entries_.size() == kFew) IndexAll();
        if (entries_.size() >= kFew) positions_.MakeRoom();
        entries_.push_back(std::move(entry));
        if (entries_.size() > kFew) Index(entries_.size() - 1);
    }

    void Index(size_t at) {
        if (!entries_[at].key.empty()) positions_.Add(entries_[at].key.view(), at);
    }
    void IndexAll() {
        positions_.Clear();
        for (size_t at = 0; at < entries_.size(); ++at) Index(at);
    }

    // A few keys are looked at one by one.
    size_t PlaceOf(const String& key) const {
        if (entries_.size() > kFew) {
            return positions_.Find(key.view(),
                                   [this](size_t at) { return entries_[at].key.view(); });
        }
        for (size_t at = 0; !key.empty() && at < entries_.size(); ++at) {
            if (EqualFolded(entries_[at].key.view(), key.view())) return at;
        }
        return NameIndex::kNone;
    }

    size_t Position(const String& key) const {
        const size_t at = PlaceOf(key);
        if (at == NameIndex::kNone) {
            throw Error(ErrorNumber::InvalidCall, "Collection",
                        "Invalid procedure call or argument");
        }
        return at;
    }

    void Erase(size_t position) {
        entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(position));
        if (entries_.size() > kFew) IndexAll();
    }

    static constexpr size_t kFew = 16;
    std::vector<Entry> entries_;
    NameIndex positions_;  ///< of more than a few
};

}  // namespace vxgui::ole
