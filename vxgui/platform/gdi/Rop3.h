#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "vxgui/platform/gdi_types.h"

namespace vxgui::gdi {

/// A ternary raster operation. Bit 4P + 2S + D of its code is the result for those three bits.
class Rop3 {
public:
    explicit Rop3(DWORD rop);

    uint8_t Code() const { return code_; }
    bool UsesPattern() const { return ((code_ >> 4 ^ code_) & 0x0F) != 0; }
    bool UsesSource() const { return ((code_ >> 2 ^ code_) & 0x33) != 0; }
    bool UsesDestination() const { return ((code_ >> 1 ^ code_) & 0x55) != 0; }

    /// `count` words of `destination` become the operation's result. An operand that the
    /// operation doesn't use may be any readable words, `destination` itself too.
    void Apply(const uint32_t* pattern, const uint32_t* source, uint32_t* destination,
               size_t count) const;

private:
    uint8_t code_;
    // The algebraic normal form: the result is the exclusive or of the products of the operands
    // in each set (bit 2 P, bit 1 S, bit 0 D) whose mask is all ones.
    std::array<uint32_t, 8> masks_;
};

}  // namespace vxgui::gdi
