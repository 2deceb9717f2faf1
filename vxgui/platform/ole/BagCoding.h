#pragma once

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

/// The entries as a CBOR map (RFC 8949) of definite length from text strings to simple values:
/// true and false, integers, single and double floats, text strings and byte strings.
ByteArray EncodeBag(const std::vector<BagEntry>& entries);

/// The reverse. Also reads integers of any width whose value has 32 bits, and half floats. Raises
/// error 5, with the place, for anything else, bytes behind the map included; memory is taken
/// for what is there, not for what a length claims. Names are not compared.
std::vector<BagEntry> DecodeBag(const ByteArray& bytes);

/// Raises error 5 for contents that are no bag.
[[noreturn]] void RefuseBag(const String& why);

}  // namespace vxgui::ole
