#pragma once

#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>

#include "vxgui/base/Error.h"

namespace vxgui {

/// Rounds to nearest, halves to even, and wraps the result at the width of `T`. What no 64-bit
/// integer holds (and what is no number) gives 0.
template <std::integral T = int32_t>
T RoundHalfEven(double value) {
    const double rounded = std::nearbyint(value);  // the default rounding mode is half to even
    if (!(rounded >= -9223372036854775808.0 && rounded < 9223372036854775808.0)) return 0;
    return static_cast<T>(static_cast<int64_t>(rounded));
}

/// The same, but a result outside `T` raises the overflow error.
template <std::integral T = int32_t>
T RoundHalfEvenChecked(double value, const char* source) {
    const double rounded = std::nearbyint(value);
    if (!(rounded >= static_cast<double>(std::numeric_limits<T>::min()) &&
          rounded <= static_cast<double>(std::numeric_limits<T>::max()))) {
        throw Error(ErrorNumber::Overflow, source, "Overflow");
    }
    return static_cast<T>(rounded);
}

/// Drops the fraction; the result wraps at the width of `T`, and what is no number gives 0.
template <std::integral T = int32_t>
T Truncate(double value) {
    return RoundHalfEven<T>(std::trunc(value));
}

/// Two's-complement arithmetic that wraps silently, as all integer work of the library does.
template <std::integral T>
constexpr T WrapAdd(T a, T b) {
    using U = std::make_unsigned_t<T>;
    return static_cast<T>(static_cast<U>(static_cast<U>(a) + static_cast<U>(b)));
}
template <std::integral T>
constexpr T WrapSub(T a, T b) {
    using U = std::make_unsigned_t<T>;
    return static_cast<T>(static_cast<U>(static_cast<U>(a) - static_cast<U>(b)));
}
constexpr int32_t WrapMul(int32_t a, int32_t b) {
    return static_cast<int32_t>(static_cast<uint32_t>(a) * static_cast<uint32_t>(b));
}

}  // namespace vxgui
