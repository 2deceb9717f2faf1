#pragma once

#include <cstddef>
#include <list>
#include <unordered_map>
#include <utility>

namespace vxgui::gdi {

/// Values by key under a bound on their summed cost; what was used longest ago goes first. `Hash`
/// and `Equal` may be transparent, so that a look-up needs no key of its own.
template <class Key, class Value, class Hash, class Equal = std::equal_to<>>
class LruCache {
public:
    explicit LruCache(size_t bound) : bound_(bound) {}

    /// The value, valid until the next `Insert`; null when there is none.
    template <class Lookup>
    Value* Find(const Lookup& key) {
        const auto found = places_.find(key);
        if (found == places_.end()) return nullptr;
        entries_.splice(entries_.begin(), entries_, found->second);
        return &found->second->value;
    }

    /// Enters a value that isn't there yet. It stays even when it is beyond the bound alone.
    Value* Insert(Key key, Value value, size_t cost) {
        entries_.push_front({std::move(key), std::move(value), cost});
        try {
            places_.emplace(entries_.front().key, entries_.begin());
        } catch (...) {  // an entry without a place would never be found
            entries_.pop_front();
            throw;
        }
        cost_ += cost;
        DropSurplus();
        return &entries_.front().value;
    }

    /// Gives the value that was found or entered last another cost.
    void Reprice(size_t cost) {
        cost_ += cost - entries_.front().cost;
        entries_.front().cost = cost;
        DropSurplus();
    }

    void Clear() {
        places_.clear();
        entries_.clear();
        cost_ = 0;
    }

    size_t Cost() const { return cost_; }
    size_t Count() const { return entries_.size(); }

private:
    struct Entry {
        Key key;
        Value value;
        size_t cost;
    };

    void DropSurplus() {
        while (cost_ > bound_ && entries_.size() > 1) DropLast();
    }

    void DropLast() {
        places_.erase(entries_.back().key);
        cost_ -= entries_.back().cost;
        entries_.pop_back();
    }

    const size_t bound_;
    size_t cost_ = 0;
    std::list<Entry> entries_;
    std::unordered_map<Key, typename std::list<Entry>::iterator, Hash, Equal> places_;
};

/// Mixes a value into a hash.
constexpr size_t MixHash(size_t hash, size_t value) {
    return (hash ^ value) * 0x9E3779B97F4A7C15u ^ (hash >> 29);
}

}  // namespace vxgui::gdi
