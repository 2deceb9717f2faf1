#pragma once

#include <cstdint>

/// The published colour arithmetic once more, step by step, in plain integers that can't wrap,
/// with nothing of the library. For values on the 0 to 240 scale only, except the hue.
namespace vxgui::reference {

struct HLS {
    int hue, lum, sat;
};

inline HLS FromColorRef(int64_t rgb) {
    const int64_t r = rgb % 256, g = rgb / 256 % 256, b = rgb / 65536 % 256;
    const int64_t high = r > g ? (r > b ? r : b) : (g > b ? g : b);
    const int64_t low = r < g ? (r < b ? r : b) : (g < b ? g : b);
    const int64_t lum = ((high + low) * 240 + 255) / 510;
    if (high == low) return {160, static_cast<int>(lum), 0};
    int64_t sat;
    if (lum <= 120) {
        sat = ((high - low) * 240 + (high + low) / 2) / (high + low);
    } else {
        sat = ((high - low) * 240 + (510 - high - low) / 2) / (510 - high - low);
    }
    const int64_t rDelta = ((high - r) * 40 + (high - low) / 2) / (high - low);
    const int64_t gDelta = ((high - g) * 40 + (high - low) / 2) / (high - low);
    const int64_t bDelta = ((high - b) * 40 + (high - low) / 2) / (high - low);
    int64_t hue;
    if (r == high) {
        hue = bDelta - gDelta;
    } else if (g == high) {
        hue = 80 + rDelta - bDelta;
    } else {
        hue = 160 + gDelta - rDelta;
    }
    if (hue < 0) hue += 240;
    if (hue > 240) hue -= 240;
    return {static_cast<int>(hue), static_cast<int>(lum), static_cast<int>(sat)};
}

inline int64_t PartOf(int64_t m1, int64_t m2, int64_t h) {
    h = (h % 65536 + 65536) % 65536;
    if (h > 240) h -= 240;
    if (h < 40) return m1 + ((m2 - m1) * h + 20) / 40;
    if (h < 120) return m2;
    if (h < 160) return m1 + ((m2 - m1) * (160 - h) + 20) / 40;
    return m1;
}

inline int64_t ToColorRef(int64_t hue, int64_t lum, int64_t sat) {
    if (sat == 0) return lum * 255 / 240 * 0x010101;
    int64_t m2;
    if (lum <= 120) {
        m2 = (lum * (240 + sat) + 120) / 240;
    } else {
        m2 = lum + sat - (lum * sat + 120) / 240;
    }
    const int64_t m1 = 2 * lum - m2;
    const int64_t r = (PartOf(m1, m2, hue + 80) * 255 + 120) / 240;
    const int64_t g = (PartOf(m1, m2, hue) * 255 + 120) / 240;
    const int64_t b = (PartOf(m1, m2, hue - 80) * 255 + 120) / 240;
    return r + g * 256 + b * 65536;
}

/// Rounds n / d to the nearest integer, halves to the even one; d is above 0.
inline int64_t RoundedQuotient(int64_t n, int64_t d) {
    int64_t floor = n / d;
    if (n % d < 0) --floor;
    const int64_t twice = 2 * (n - floor * d);
    if (twice > d || (twice == d && floor % 2 != 0)) return floor + 1;
    return floor;
}

inline int64_t Scaled(int64_t v, int64_t n, bool scale, bool truncate = false) {
    if (n == 0) return v;
    int64_t result;
    if (scale && n > 0) {
        const int64_t sum = (1000 - n) * v + n * 241;
        result = truncate ? sum / 1000 : RoundedQuotient(sum, 1000);
    } else if (scale) {
        result = (n + 1000) * v / 1000;
    } else {
        result = v + n * 240 / 1000;
    }
    return result < 0 ? 0 : result > 240 ? 240 : result;
}

}  // namespace vxgui::reference
