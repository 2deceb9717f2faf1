#include "vxgui/base/OutOfMemory.h"
#include "vxgui/platform/limits.h"
#include "vxgui/platform/ole/BagNames.h"
#include "vxgui/platform/ole_bag.h"

namespace vxgui::ole {

struct BagReader::Store {
    void Open(std::span<const uint8_t> contents) {
        Empty();
        if (contents.size() > ApartmentLimits().bagBytes)
            RefuseBag("More bytes than the limit allows");
        if (contents.empty()) return;
        BagDecoder from(contents);
        for (size_t count = from.Entries(); entries.size() < count;) {
            const size_t name = names.Take(from, entries.size());
            Entry& entry = entries.emplace_back();  // written in place
            entry.name = name;
            from.Value(&entry.value);
        }
        from.End();
    }

    void Empty() {
        entries.clear();
        names.Begin();
        next = 0;
    }

    const BagItem* Find(std::string_view name) {
        const bool follows = next < entries.size() && names.Is(entries[next].name, name);
        const size_t place = follows ? next : names.PlaceOf(name);
        if (place == BagNames::kNone) return nullptr;
        next = place + 1;
        return &entries[place].value;
    }

private:
    struct Entry {
        size_t name = 0;
        BagItem value;
    };

    BagNames names;
    std::vector<Entry> entries;
    size_t next = 0;  ///< the entry behind the one that was read last
};

BagReader::BagReader() : store_(std::make_unique<Store>()) {}
BagReader::~BagReader() = default;

void BagReader::Open(std::span<const uint8_t> contents) try {
    store_->Open(contents);
} catch (const std::bad_alloc&) {
    store_->Empty();
    RaiseOutOfMemory("BagReader.Open");
} catch (...) {
    store_->Empty();
    throw;
}

Variant BagReader::ReadProperty(std::string_view name) try {
    const BagItem* item = store_->Find(name);
    return item ? ValueOf<Variant>(*item) : Variant();
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("BagReader.ReadProperty");
}

bool BagReader::ReadInteger(std::string_view name, int32_t* value) {
    const BagItem* item = store_->Find(name);
    if (item && !item->IsInteger()) return false;
    if (item) *value = item->Integer();
    return true;
}

bool BagReader::ReadBytes(std::string_view name, std::span<const uint8_t>* value) {
    const BagItem* item = store_->Find(name);
    if (item && item->kind != BagItem::Kind::Bytes) return false;
    if (item) *value = {reinterpret_cast<const uint8_t*>(item->data.data()), item->data.size()};
    return true;
}

bool BagReader::Has(std::string_view name) { return store_->Find(name) != nullptr; }

}  // namespace vxgui::ole
