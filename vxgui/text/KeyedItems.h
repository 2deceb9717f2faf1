#pragma once

#include <iterator>

#include "vxgui/base/Ref.h"
#include "vxgui/base/String.h"
#include "vxgui/platform/Collection.h"

namespace vxgui {

/// Objects in their order, counted from 1, each under a key of its own or under none. Reading and
/// removing forgive: what isn't there reads as none and is removed by doing nothing.
template <class T>
class KeyedItems {
public:
    /// Goes over the items in their order.
    class Iterator {
    public:
        using iterator_category = std::input_iterator_tag;
        using value_type = Ref<T>;
        using difference_type = std::ptrdiff_t;
        using pointer = const Ref<T>*;
        using reference = Ref<T>;

        Iterator(const KeyedItems* items, int32_t index) : items_(items), index_(index) {}
        Ref<T> operator*() const { return items_->Item(index_); }
        Iterator& operator++() {
            ++index_;
            return *this;
        }
        friend bool operator==(const Iterator&, const Iterator&) = default;

    private:
        const KeyedItems* items_;
        int32_t index_;
    };

    /// Adds at the end; a key that is there already raises the collection's error.
    void Add(const Ref<T>& item, const String& key) { items_.Add(item, key); }
    /// Adds at the end. An item that stands under the key already is taken away first.
    void AddReplacing(const Ref<T>& item, const String& key) { items_.AddReplacing(item, key); }
    Ref<T> Item(int32_t index) const { return items_.Find(index); }
    Ref<T> Item(const String& key) const { return items_.Find(key); }
    int32_t Count() const { return items_.Count(); }
    /// In small letters; empty for an item without a key. Raises error 9 for no item.
    const String& KeyOf(int32_t index) const { return items_.Key(index); }
    template <class Index>
    void Remove(const Index& indexOrKey) {
        if (items_.Contains(indexOrKey)) items_.Remove(indexOrKey);
    }
    void Clear() { items_.Clear(); }
    Iterator begin() const { return {this, 1}; }
    Iterator end() const { return {this, Count() + 1}; }

private:
    ole::Collection<Ref<T>> items_;
};

}  // namespace vxgui
