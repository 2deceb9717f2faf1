#include <map>

#include "vxgui/base/Error.h"
#include "vxgui/base/OutOfMemory.h"
#include "vxgui/platform/limits.h"
#include "vxgui/platform/ole.h"
#include "vxgui/platform/ole/BagCoding.h"

namespace vxgui::ole {
namespace {

struct ToBagValue {
    template <class T>
    BagValue operator()(const T& value) const {
        if constexpr (std::is_constructible_v<BagValue, std::in_place_type_t<T>, T>) return value;
        throw Error(ErrorNumber::TypeMismatch, "PropertyBag.WriteProperty", "Type mismatch");
    }
};

Variant ToVariant(const BagValue& value) {
    return std::visit([](const auto& held) { return Variant(held); }, value);
}

}  // namespace

// The entries in their order, and where the entry of each folded name stands.
struct PropertyBag::Store {
    std::vector<BagEntry> entries;
    std::map<String, size_t> places;

    const BagEntry* Find(const String& name) const {
        const auto place = places.find(name.Lower());
        return place == places.end() ? nullptr : &entries[place->second];
    }

    // False when the name is there already.
    bool Add(BagEntry entry) {
        const bool isNew = places.try_emplace(entry.name.Lower(), entries.size()).second;
        if (isNew) entries.push_back(std::move(entry));
        return isNew;
    }

    void Set(const String& name, BagValue value) {
        if (const auto place = places.find(name.Lower()); place != places.end()) {
            entries[place->second].value = std::move(value);
        } else {
            Add({name, std::move(value)});
        }
    }

    void Remove(const String& name) {
        const auto place = places.find(name.Lower());
        if (place == places.end()) return;
        const size_t removed = place->second;
        places.erase(place);
        entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(removed));
        for (auto& [folded, at] : places) at -= at > removed ? 1 : 0;
    }
};

PropertyBag::PropertyBag() : store_(std::make_unique<Store>()) {}
PropertyBag::~PropertyBag() = default;

Variant PropertyBag::ReadProperty(const String& name, const Variant& fallback) const try {
    const BagEntry* entry = store_->Find(name);
    return entry ? ToVariant(entry->value) : fallback;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("PropertyBag.ReadProperty");
}

void PropertyBag::WriteProperty(const String& name, const Variant& value, const Variant& fallback) try {
    if (value == fallback) return store_->Remove(name);
    store_->Set(name, std::visit(ToBagValue(), value.storage()));
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("PropertyBag.WriteProperty");
}

bool PropertyBag::Has(const String& name) const { return store_->Find(name) != nullptr; }

std::vector<String> PropertyBag::Names() const try {
    std::vector<String> names;
    for (const BagEntry& entry : store_->entries) names.push_back(entry.name);
    return names;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("PropertyBag.Names");
}

ByteArray PropertyBag::Contents() const try {
    return EncodeBag(store_->entries);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("PropertyBag.Contents");
}

void PropertyBag::Contents(const ByteArray& bytes) try {
    auto store = std::make_unique<Store>();
    if (bytes.size() > ApartmentLimits().bagBytes) RefuseBag("More bytes than the limit allows");
    if (!bytes.empty()) {
        for (BagEntry& entry : DecodeBag(bytes)) {
            const String name = entry.name;
            if (!store->Add(std::move(entry))) RefuseBag("The name \"" + name + "\" stands twice");
        }
    }
    store_ = std::move(store);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("PropertyBag.Contents");
}

}  // namespace vxgui::ole
