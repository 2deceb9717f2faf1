#include <cbor/streaming.h>

#include <limits>

#include "vxgui/base/Error.h"
#include "vxgui/base/Utf.h"
#include "vxgui/platform/limits.h"
#include "vxgui/platform/ole/BagCoding.h"

namespace vxgui::ole {
namespace {

// One data item as the decoder meets it. Views lie in the contents; nothing is copied and nothing
// raises while the C code runs.
struct Item {
    enum class Kind {
        kOther,
        kMap,
        kText,
        kBytes,
        kBoolean,
        kPositive,
        kNegative,
        kFloat,
        kDouble
    };

    Kind kind = Kind::kOther;
    uint64_t number = 0;  ///< of a map: entries; of a negative integer n: -1 - n
    double real = 0;
    std::string_view data;
};

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

// Whatever has no line here (arrays, tags, null, lengths that are left open) stays `kOther`.
cbor_callbacks Callbacks() {
    using Kind = Item::Kind;
    cbor_callbacks callbacks = cbor_empty_callbacks;
    callbacks.map_start = TakeNumber<Kind::kMap, size_t>;
    callbacks.string = TakeData<Kind::kText>;
    callbacks.byte_string = TakeData<Kind::kBytes>;
    callbacks.boolean = TakeNumber<Kind::kBoolean, bool>;
    callbacks.uint8 = TakeNumber<Kind::kPositive, uint8_t>;
    callbacks.uint16 = TakeNumber<Kind::kPositive, uint16_t>;
    callbacks.uint32 = TakeNumber<Kind::kPositive, uint32_t>;
    callbacks.uint64 = TakeNumber<Kind::kPositive, uint64_t>;
    callbacks.negint8 = TakeNumber<Kind::kNegative, uint8_t>;
    callbacks.negint16 = TakeNumber<Kind::kNegative, uint16_t>;
    callbacks.negint32 = TakeNumber<Kind::kNegative, uint32_t>;
    callbacks.negint64 = TakeNumber<Kind::kNegative, uint64_t>;
    callbacks.float2 = TakeReal<Kind::kFloat, float>;
    callbacks.float4 = TakeReal<Kind::kFloat, float>;
    callbacks.float8 = TakeReal<Kind::kDouble, double>;
    return callbacks;
}

class Decoder {
public:
    explicit Decoder(const ByteArray& bytes) : bytes_(bytes) {}

    std::vector<BagEntry> Decode() {
        const Item map = Next();
        if (map.kind != Item::Kind::kMap) Refuse("There is no map");
        // An entry takes two bytes at the least.
        if (map.number > (bytes_.size() - at_) / 2) Refuse("More entries than bytes are claimed");
        if (map.number > ApartmentLimits().bagEntries) Refuse("More entries than the limit allows");
        std::vector<BagEntry> entries;
        while (entries.size() < map.number) {
            String name = Name();
            entries.push_back({std::move(name), Value()});
        }
        if (at_ < bytes_.size()) Refuse("Something follows the map", at_);
        return entries;
    }

private:
    Item Next() {
        static const cbor_callbacks callbacks = Callbacks();
        Item item;
        const cbor_decoder_result result =
            cbor_stream_decode(bytes_.data() + at_, bytes_.size() - at_, &callbacks, &item);
        start_ = at_;
        at_ += result.read;
        if (result.status == CBOR_DECODER_NEDATA) Refuse("The contents end early");
        if (result.status != CBOR_DECODER_FINISHED) Refuse("A malformed item");
        return item;
    }

    String Name() {
        const Item name = Next();
        if (name.kind != Item::Kind::kText) Refuse("A name that is no text");
        return Text(name);
    }

    BagValue Value() {
        const Item item = Next();
        switch (item.kind) {
            case Item::Kind::kText:
                return Text(item);
            case Item::Kind::kBytes:
                return ByteArray(item.data.begin(), item.data.end());
            case Item::Kind::kBoolean:
                return item.number != 0;
            case Item::Kind::kPositive:
                return Integer(item);
            case Item::Kind::kNegative:
                return ~Integer(item);
            case Item::Kind::kFloat:
                return static_cast<float>(item.real);
            case Item::Kind::kDouble:
                return item.real;
            default:
                Refuse("A value of a kind that no property has");
        }
    }

    String Text(const Item& item) {
        if (!IsUtf8(item.data)) Refuse("Text that is not UTF-8");
        return item.data;
    }

    int32_t Integer(const Item& item) {
        if (item.number > static_cast<uint64_t>(std::numeric_limits<int32_t>::max())) {
            Refuse("An integer of more than 32 bits");
        }
        return static_cast<int32_t>(item.number);
    }

    // At the item that was read last, unless `place` says otherwise.
    [[noreturn]] void Refuse(const char* why) { Refuse(why, start_); }
    [[noreturn]] static void Refuse(const char* why, size_t place) {
        RefuseBag(String(why) + ", at byte " + String::FromInt(static_cast<int64_t>(place)));
    }

    const ByteArray& bytes_;
    size_t start_ = 0;
    size_t at_ = 0;
};

}  // namespace

std::vector<BagEntry> DecodeBag(const ByteArray& bytes) { return Decoder(bytes).Decode(); }

void RefuseBag(const String& why) { throw Error(ErrorNumber::InvalidCall, "PropertyBag", why); }

}  // namespace vxgui::ole
