#include <deque>

#include "vxgui/base/NameIndex.h"
#include "vxgui/base/OutOfMemory.h"
#include "vxgui/platform/limits.h"
#include "vxgui/platform/ole/BagCoding.h"
#include "vxgui/platform/ole_bag.h"

namespace vxgui::ole {
namespace {

constexpr size_t kSmallBag = 1000;

bool IsAscii(std::string_view text) {
    for (const char byte : text)
        if (static_cast<uint8_t>(byte) >= 0x80) return false;
    return true;
}

}  // namespace

struct BagReader::Store {
    std::vector<NamedItem> items;
    NameIndex places;
    std::deque<std::string> foldedNames;  ///< of items whose names have other letters than ASCII
    size_t next = 0;                      ///< the item behind the one that was read last

    void Open(std::span<const uint8_t> contents) {
        Empty();
        if (contents.size() > ApartmentLimits().bagBytes)
            RefuseBag("More bytes than the limit allows");
        if (!contents.empty()) DecodeItems(contents, &items);
        for (size_t at = 0; at < items.size(); ++at) Enter(at);
    }

    void Empty() {
        // What one large bag took isn't cleared for each of the small ones that follow.
        if (items.size() > kSmallBag) places = {};
        items.clear();
        places.Clear();
        foldedNames.clear();
        next = 0;
    }

    const BagItem* Find(std::string_view name) {
        const size_t place = next < items.size() && items[next].name == name ? next : PlaceOf(name);
        if (place == NameIndex::kNone) return nullptr;
        next = place + 1;
        return &items[place].value;
    }

private:
    size_t PlaceOf(std::string_view name) const {
        return places.Find(name, [this](size_t at) { return items[at].name; });
    }

    void Enter(size_t at) {
        std::string_view& name = items[at].name;
        if (!IsAscii(name)) name = foldedNames.emplace_back(String(name).Lower().Utf8());
        if (PlaceOf(name) != NameIndex::kNone)
            RefuseBag("The name \"" + String(name) + "\" stands twice");
        places.Add(name, at);
    }
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

bool BagReader::Has(std::string_view name) { return store_->Find(name) != nullptr; }

}  // namespace vxgui::ole
