#pragma once

#include <concepts>
#include <cstdint>

namespace vxgui {

/// The integer that is stored at `bytes`, at any address, lowest byte first.
template <std::unsigned_integral T>
constexpr T LoadLittle(const uint8_t* bytes) {
    T value = 0;
    for (unsigned i = 0; i < sizeof(T); ++i) {
        value = static_cast<T>(value | static_cast<T>(bytes[i]) << (8 * i));
    }
    return value;
}

/// Stores the integer at `bytes`, at any address, lowest byte first.
template <std::unsigned_integral T>
constexpr void StoreLittle(uint8_t* bytes, T value) {
    for (unsigned i = 0; i < sizeof(T); ++i) bytes[i] = static_cast<uint8_t>(value >> (8 * i));
}

}  // namespace vxgui
