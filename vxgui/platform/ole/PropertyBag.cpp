#include "vxgui/base/Error.h"
#include "vxgui/base/NameIndex.h"
#include "vxgui/base/OutOfMemory.h"
#include "vxgui/platform/limits.h"
#include "vxgui/platform/ole.h"
#include "vxgui/platform/ole/BagCoding.h"

namespace vxgui::ole {
namespace {

[[noreturn]] void RaiseMismatch() {
    throw Error(ErrorNumber::TypeMismatch, "PropertyBag.WriteProperty", "Type mismatch");
}

struct ToBagValue {
    BagValue operator()(const Ref<Object>& object) const {
        auto* const persistent = dynamic_cast<Persistent*>(object.get());
        if (!persistent) RaiseMismatch();
        const auto inner = New<PropertyBag>();
        persistent->SaveTo(inner);
        return inner->Contents();
    }
    template <class T>
    BagValue operator()(const T& value) const {
        if constexpr (std::is_constructible_v<BagValue, std::in_place_type_t<T>, T>) return value;
        RaiseMismatch();
    }
};

Variant ToVariant(const BagValue& value) {
    return std::visit([](const auto& held) { return Variant(held); }, value);
}

}  // namespace

// The entries in their order, and where each name stands.
struct PropertyBag::Store {
    std::vector<BagEntry> entries;
    NameIndex places;

    size_t PlaceOf(const String& name) const {
        return places.Find(name.view(), [this](size_t at) { return entries[at].name.view(); });
    }

    const BagEntry* Find(const String& name) const {
        const size_t place = PlaceOf(name);
        return place == NameIndex::kNone ? nullptr : &entries[place];
    }

    // False when the name is there already.
    bool Add(BagEntry entry) {
        if (PlaceOf(entry.name) != NameIndex::kNone) return false;
        places.MakeRoom();
        entries.push_back(std::move(entry));
        places.Add(entries.back().name.view(), entries.size() - 1);
        return true;
    }

    void Set(const String& name, BagValue value) {
        if (const size_t place = PlaceOf(name); place != NameIndex::kNone) {
            entries[place].value = std::move(value);
        } else {
            Add({name, std::move(value)});
        }
    }

    void Remove(const String& name) {
        const size_t place = PlaceOf(name);
        if (place == NameIndex::kNone) return;
        entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(place));
        places.Clear();
        for (size_t at = 0; at < entries.size(); ++at) places.Add(entries[at].name.view(), at);
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

bool PropertyBag::RestoreProperty(const String& name, Persistent& object) const try {
    const Variant value = ReadProperty(name);
    const auto* const contents = value.As<ByteArray>();
    if (!contents) return false;
    const auto inner = New<PropertyBag>();
    inner->Contents(*contents);
    object.RestoreFrom(inner);
    return true;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("PropertyBag.RestoreProperty");
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
            if (store->Find(entry.name)) RefuseBag("The name \"" + entry.name + "\" stands twice");
            store->Add(std::move(entry));
        }
    }
    store_ = std::move(store);
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("PropertyBag.Contents");
}

}  // namespace vxgui::ole
