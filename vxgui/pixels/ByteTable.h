#pragma once

#include <array>
#include <cmath>
#include <cstdint>
#include <span>

#include "vxgui/base/Export.h"

namespace vxgui {

/// A new value for each value of a channel.
using ByteTable = std::array<uint8_t, 256>;

struct ChannelTables {
    ByteTable blue, green, red, alpha;
};

/// A table of `value(i)` for i from 0 to 255, bounded to a byte and rounded, halves up.
template <class Value>
ByteTable MakeByteTable(Value value) {
    ByteTable table;
    for (int i = 0; i < 256; ++i) {
        const double at = value(i);
        table[static_cast<size_t>(i)] =
            static_cast<uint8_t>(at > 0 ? std::floor(std::fmin(at, 255) + 0.5) : 0);
    }
    return table;
}

/// Replaces each channel of 32-bit pixels, blue lowest.
VXPLATFORM_API void LookUp(std::span<uint32_t> pixels, const ChannelTables& tables);
/// Replaces the colours by one table and leaves the alpha.
VXPLATFORM_API void LookUpColors(std::span<uint32_t> pixels, const ByteTable& table);

}  // namespace vxgui
