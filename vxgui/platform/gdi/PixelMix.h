#pragma once

#include <cstdint>

namespace vxgui::gdi {

// The arithmetic of the alpha calls on words 0xAARRGGBB: two channels of a word at a time, each
// in 16 bits of its own. (n + 1 + n/256) / 256 is n / 255 for all n that come up.
constexpr uint32_t kPair = 0x00FF00FF;
constexpr uint32_t kOnePair = 0x00010001;

constexpr uint32_t LowPair(uint32_t word) { return word & kPair; }
constexpr uint32_t HighPair(uint32_t word) { return word >> 8 & kPair; }
constexpr uint32_t JoinPairs(uint32_t low, uint32_t high) { return low | high << 8; }

/// (v + 127) / 255 of each channel, for v up to 255 * 255.
constexpr uint32_t RoundedDivision(uint32_t pair) {
    const uint32_t n = pair + 127 * kOnePair;
    return (n + kOnePair + (n >> 8 & kPair)) >> 8 & kPair;
}

/// Sums of two bytes, at most 255.
constexpr uint32_t SaturatedPair(uint32_t pair) {
    const uint32_t over = pair & 0x01000100;
    return (pair | (over - (over >> 8))) & kPair;
}

/// (w*c + 127) / 255 for all four bytes.
constexpr uint32_t Scaled(uint32_t word, uint32_t by) {
    return JoinPairs(RoundedDivision(LowPair(word) * by), RoundedDivision(HighPair(word) * by));
}

/// (s*c + d*(255-c) + 127) / 255 for all four bytes.
constexpr uint32_t MixByConstant(uint32_t source, uint32_t destination, uint32_t constant) {
    const uint32_t rest = 255 - constant;
    return JoinPairs(RoundedDivision(LowPair(source) * constant + LowPair(destination) * rest),
                     RoundedDivision(HighPair(source) * constant + HighPair(destination) * rest));
}

/// s + (d*(255-a) + 127) / 255 for all four bytes. A source that isn't premultiplied would pass
/// 255 and stops there.
constexpr uint32_t SourceOver(uint32_t source, uint32_t destination) {
    const uint32_t under = Scaled(destination, 255 - (source >> 24));
    return JoinPairs(SaturatedPair(LowPair(source) + LowPair(under)),
                     SaturatedPair(HighPair(source) + HighPair(under)));
}

/// s' = (s*c + 127) / 255 for all four bytes, then source over.
constexpr uint32_t ScaledSourceOver(uint32_t source, uint32_t destination, uint32_t constant) {
    return SourceOver(Scaled(source, constant), destination);
}

/// The colours times alpha: (c*a + 127) / 255.
constexpr uint32_t Premultiplied(uint32_t word) {
    constexpr uint32_t kAlpha = 0xFF000000;
    return (Scaled(word, word >> 24) & ~kAlpha) | (word & kAlpha);
}

}  // namespace vxgui::gdi
