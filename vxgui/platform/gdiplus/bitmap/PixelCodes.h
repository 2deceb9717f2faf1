#pragma once

#include <algorithm>
#include <cstring>

#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/gdiplus/words/Premultiply.h"
#include "vxgui/platform/gdiplus/bitmap/LinearLight.h"
#include "vxgui/platform/gdiplus/bitmap/Luminance.h"

/// One pixel of each format that has whole bytes: `kBytes`, and straight 32-bit pixels both ways.
namespace vxgui::gdiplus::codes {

constexpr ARGB kOpaque = 0xFF000000;

constexpr ARGB Channel(ARGB color, int shift) { return color >> shift & 255; }
constexpr ARGB Pack(ARGB alpha, ARGB red, ARGB green, ARGB blue) {
    return alpha << 24 | red << 16 | green << 8 | blue;
}

template <bool kAlpha, bool kPremultiplied>
struct Bits32 {
    static constexpr size_t kBytes = 4;
    static ARGB Read(const uint8_t* from) {
        const auto pixel = LoadLittle<uint32_t>(from);
        return !kAlpha ? pixel | kOpaque : kPremultiplied ? Straight(pixel) : pixel;
    }
    static void Write(uint8_t* to, ARGB color) {
        StoreLittle(to, !kAlpha ? color | kOpaque : kPremultiplied ? Premultiplied(color) : color);
    }
};

struct Bits24 {
    static constexpr size_t kBytes = 3;
    static ARGB Read(const uint8_t* from) { return Pack(255, from[2], from[1], from[0]); }
    static void Write(uint8_t* to, ARGB color) {
        for (int i = 0; i < 3; ++i) to[i] = static_cast<uint8_t>(color >> 8 * i);
    }
};

// 5 bits become 8 by repeating the upper ones, so that the brightest is 255.
template <bool kAlpha, int kGreenBits>
struct Bits16 {
    static constexpr size_t kBytes = 2;
    static ARGB Widened(ARGB value, int bits) {
        return value << (8 - bits) | value >> (2 * bits - 8);
    }
    static ARGB Read(const uint8_t* from) {
        const ARGB pixel = LoadLittle<uint16_t>(from);
        const ARGB alpha = !kAlpha || pixel & 0x8000 ? 255 : 0;
        return Pack(alpha, Widened(pixel >> (5 + kGreenBits) & 31, 5),
                    Widened(pixel >> 5 & ((1u << kGreenBits) - 1), kGreenBits),
                    Widened(pixel & 31, 5));
    }
    static void Write(uint8_t* to, ARGB color) {
        const ARGB alpha = kAlpha && color & 0x80000000 ? 0x8000 : 0;
        StoreLittle(to, static_cast<uint16_t>(alpha | Channel(color, 16) >> 3 << (5 + kGreenBits) |
                                              Channel(color, 8) >> (8 - kGreenBits) << 5 |
                                              Channel(color, 0) >> 3));
    }
};

struct Gray16 {
    static constexpr size_t kBytes = 2;
    static ARGB Read(const uint8_t* from) { return kOpaque | from[1] * 0x010101u; }
    static void Write(uint8_t* to, ARGB color) {
        StoreLittle(to, static_cast<uint16_t>(Luminance(color) * 257));
    }
};

// Cyan, magenta, yellow and black, where 255 is full ink.
struct Cmyk {
    static constexpr size_t kBytes = 4;
    static ARGB Read(const uint8_t* from) {
        const auto light = [&](int ink) {
            return static_cast<ARGB>((255 - from[ink]) * (255 - from[3]) + 127) / 255;
        };
        return Pack(255, light(0), light(1), light(2));
    }
    static void Write(uint8_t* to, ARGB color) {
        const ARGB most = std::max({Channel(color, 16), Channel(color, 8), Channel(color, 0)});
        for (int ink = 0; ink < 3; ++ink) {
            const ARGB lacking = most - Channel(color, 16 - 8 * ink);
            to[ink] = static_cast<uint8_t>(most ? (lacking * 255 + most / 2) / most : 0);
        }
        to[3] = static_cast<uint8_t>(255 - most);
    }
};

template <bool kAlpha, bool kPremultiplied>
struct Linear {
    static constexpr size_t kBytes = kAlpha ? 8 : 6;
    static LinearPixel Load(const uint8_t* from) {
        LinearPixel pixel{0, 0, 0, kLinearOne};
        std::memcpy(&pixel, from, kBytes);
        return kPremultiplied ? Straight(pixel) : pixel;
    }
    static void Store(uint8_t* to, LinearPixel pixel) {
        if (kPremultiplied) pixel = Premultiplied(pixel);
        std::memcpy(to, &pixel, kBytes);
    }
    static ARGB Read(const uint8_t* from) { return FromLinear(Load(from)); }
    static void Write(uint8_t* to, ARGB color) { Store(to, ToLinear(color)); }
};

}  // namespace vxgui::gdiplus::codes
