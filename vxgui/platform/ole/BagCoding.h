#pragma once

#include <span>
#include <string_view>
#include <variant>
#include <vector>

#include "vxgui/base/Variant.h"

namespace vxgui::ole {

/// What a property bag can hold; a number may have either width.
using BagValue = std::variant<bool, int32_t, float, double, String, ByteArray>;

struct BagEntry {
    String name;
    BagValue value;
};

/// One data item of a bag's contents. Text and bytes are views of these.
struct BagItem {
    enum class Kind { Other, Map, Text, Bytes, Boolean, Positive, Negative, Float, Double };

    Kind kind = Kind::Other;
    uint64_t number = 0;  ///< of a map: entries; of a negative integer n: -1 - n
    double real = 0;
    std::string_view data;

    bool IsInteger() const { return kind == Kind::Positive || kind == Kind::Negative; }
    int32_t Integer() const {
        const auto value = static_cast<int32_t>(number);
        return kind == Kind::Negative ? ~value : value;
    }
};

/// The entries as a CBOR map (RFC 8949) of definite length from text strings to simple values:
/// true and false, integers, single and double floats, text strings and byte strings.
ByteArray EncodeBag(const std::vector<BagEntry>& entries);

/// The reverse. Also reads integers of any width whose value has 32 bits, and half floats. Raises
/// error 5, with the place, for anything else, bytes behind the map included; memory is taken
/// for what is there, not for what a length claims. Names are not compared.
std::vector<BagEntry> DecodeBag(const ByteArray& bytes);

/// The same in place, item by item: all that `DecodeBag` refuses is refused, and nothing is copied.
class BagDecoder {
public:
    explicit BagDecoder(std::span<const uint8_t> bytes) : bytes_(bytes) {}

    /// Comes first: how many entries follow, each a name and a value.
    size_t Entries();
    std::string_view Name();
    /// Whether the next name is this one, of less than 24 bytes in the shortest form: then it is
    /// passed. A shorter way than `Name`.
    bool PassName(std::string_view name);
    /// Stores the next value in an item that is fresh.
    void Value(BagItem* item);
    /// Comes last: refuses what follows the entries.
    void End() const;

private:
    void Next(BagItem* item);
    bool PassInteger(BagItem* item);
    void CheckText(const BagItem& item) const;
    void CheckInteger(const BagItem& item) const;
    [[noreturn]] void Refuse(const char* why) const;

    const std::span<const uint8_t> bytes_;
    size_t start_ = 0;  ///< of the item that was read last
    size_t at_ = 0;
};

/// The value of an item that a decoder gave, as a variant or a bag's value.
template <class Value>
Value ValueOf(const BagItem& item) {
    switch (item.kind) {
        case BagItem::Kind::Text:
            return String(item.data);
        case BagItem::Kind::Bytes:
            return ByteArray(item.data.begin(), item.data.end());
        case BagItem::Kind::Boolean:
            return item.number != 0;
        case BagItem::Kind::Positive:
        case BagItem::Kind::Negative:
            return item.Integer();
        case BagItem::Kind::Float:
            return static_cast<float>(item.real);
        default:
            return item.real;
    }
}

/// Raises error 5 for contents that are no bag.
[[noreturn]] void RefuseBag(const String& why);

}  // namespace vxgui::ole
