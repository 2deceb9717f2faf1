#include <cbor/streaming.h>

#include <limits>

#include "vxgui/base/Error.h"
#include "vxgui/base/Utf.h"
#include "vxgui/platform/limits.h"
#include "vxgui/platform/ole/BagCoding.h"
#include "vxgui/platform/ole/SameBytes.h"

namespace vxgui::ole {
namespace {

// Nothing is copied and nothing raises while the C code runs.
using Item = BagItem;

template <Item::Kind kind, class T>
void TakeNumber(void* item, T value) {
    static_cast<Item*>(item)->kind = kind;
    static_cast<Item*>(item)->number = value;
}

template <Item::Kind kind, class T>
void TakeReal(void* item, T value) {
    static_cast<Item*>(item)->kind = kind;
    static_cast<Item*>(item)->real = value;
}

template <Item::Kind kind>
void TakeData(void* item, cbor_data data, size_t size) {
    static_cast<Item*>(item)->kind = kind;
    static_cast<Item*>(item)->data = {reinterpret_cast<const char*>(data), size};
}

// Whatever has no line here (arrays, tags, null, lengths that are left open) stays `Other`.
cbor_callbacks Callbacks() {
    using Kind = Item::Kind;
    cbor_callbacks callbacks = cbor_empty_callbacks;
    callbacks.map_start = TakeNumber<Kind::Map, size_t>;
    callbacks.string = TakeData<Kind::Text>;
    callbacks.byte_string = TakeData<Kind::Bytes>;
    callbacks.boolean = TakeNumber<Kind::Boolean, bool>;
    callbacks.uint8 = TakeNumber<Kind::Positive, uint8_t>;
    callbacks.uint16 = TakeNumber<Kind::Positive, uint16_t>;
    callbacks.uint32 = TakeNumber<Kind::Positive, uint32_t>;
    callbacks.uint64 = TakeNumber<Kind::Positive, uint64_t>;
    callbacks.negint8 = TakeNumber<Kind::Negative, uint8_t>;
    callbacks.negint16 = TakeNumber<Kind::Negative, uint16_t>;
    callbacks.negint32 = TakeNumber<Kind::Negative, uint32_t>;
    callbacks.negint64 = TakeNumber<Kind::Negative, uint64_t>;
    callbacks.float2 = TakeReal<Kind::Float, float>;
    callbacks.float4 = TakeReal<Kind::Float, float>;
    callbacks.float8 = TakeReal<Kind::Double, double>;
    return callbacks;
}

// A length or an integer of less than this stands in the first byte of its item, whose upper three
// bits are the kind; a first byte that says this has it in the byte behind it (RFC 8949, section
// 3).
constexpr size_t kInOneByte = 24;
constexpr uint8_t kText = 0x60;

[[noreturn]] void RefuseAt(const char* why, size_t place) {
    RefuseBag(String(why) + ", at byte " + String::FromInt(static_cast<int64_t>(place)));
}

}  // namespace

size_t BagDecoder::Entries() {
    Item map;
    Next(&map);
    if (map.kind != Item::Kind::Map) Refuse("There is no map");
    // An entry takes two bytes at the least.
    if (map.number > (bytes_.size() - at_) / 2) Refuse("More entries than bytes are claimed");
    if (map.number > ApartmentLimits().bagEntries) Refuse("More entries than the limit allows");
    return static_cast<size_t>(map.number);
}

std::string_view BagDecoder::Name() {
    Item name;
    Next(&name);
    if (name.kind != Item::Kind::Text) Refuse("A name that is no text");
    CheckText(name);
    return name.data;
}

bool BagDecoder::PassName(std::string_view name) {
    const size_t size = name.size();
    if (size >= kInOneByte || bytes_.size() - at_ <= size || bytes_[at_] != (kText | size) ||
        !SameBytes(reinterpret_cast<const char*>(&bytes_[at_]) + 1, name.data(), size)) {
        return false;
    }
    start_ = at_;
    at_ += 1 + size;
    return true;
}

void BagDecoder::Value(BagItem* item) {
    if (PassInteger(item)) return;
    Next(item);
    switch (item->kind) {
        case Item::Kind::Other:
        case Item::Kind::Map:
            Refuse("A value of a kind that no property has");
        case Item::Kind::Text:
            return CheckText(*item);
        case Item::Kind::Positive:
        case Item::Kind::Negative:
            return CheckInteger(*item);
        default:
            return;
    }
}

// One of one or two bytes, as nearly all are, without a call.
bool BagDecoder::PassInteger(BagItem* item) {
    if (bytes_.size() - at_ < 2) return false;
    const unsigned kind = bytes_[at_] >> 5, number = bytes_[at_] & 0x1F;
    if (kind > 1 || number > kInOneByte) return false;
    const bool behind = number == kInOneByte;
    item->kind = kind == 0 ? Item::Kind::Positive : Item::Kind::Negative;
    item->number = behind ? bytes_[at_ + 1] : number;
    start_ = at_;
    at_ += behind ? 2 : 1;
    return true;
}

void BagDecoder::End() const {
    if (at_ < bytes_.size()) RefuseAt("Something follows the map", at_);
}

void BagDecoder::Next(BagItem* item) {
    static const cbor_callbacks callbacks = Callbacks();
    const cbor_decoder_result result =
        cbor_stream_decode(bytes_.data() + at_, bytes_.size() - at_, &callbacks, item);
    start_ = at_;
    at_ += result.read;
    if (result.status == CBOR_DECODER_NEDATA) Refuse("The contents end early");
    if (result.status != CBOR_DECODER_FINISHED) Refuse("A malformed item");
}

void BagDecoder::CheckText(const BagItem& item) const {
    if (!IsUtf8(item.data)) Refuse("Text that is not UTF-8");
}

void BagDecoder::CheckInteger(const BagItem& item) const {
    if (item.number > static_cast<uint64_t>(std::numeric_limits<int32_t>::max())) {
        Refuse("An integer of more than 32 bits");
    }
}

void BagDecoder::Refuse(const char* why) const { RefuseAt(why, start_); }

std::vector<BagEntry> DecodeBag(const ByteArray& bytes) {
    BagDecoder from(bytes);
    std::vector<BagEntry> entries;
    for (size_t count = from.Entries(); entries.size() < count;) {
        String name = from.Name();
        BagItem value;
        from.Value(&value);
        entries.push_back({std::move(name), ValueOf<BagValue>(value)});
    }
    from.End();
    return entries;
}

void RefuseBag(const String& why) { throw Error(ErrorNumber::InvalidCall, "PropertyBag", why); }

}  // namespace vxgui::ole
