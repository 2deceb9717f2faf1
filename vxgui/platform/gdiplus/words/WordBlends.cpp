#include "vxgui/platform/gdiplus/words/WordBlends.h"

#include <array>
#include <bit>
#include <cwchar>

#include "vxgui/pixels/Multiversion.h"
#include "vxgui/platform/gdiplus/words/Channels.h"

namespace vxgui::gdiplus {
namespace {

using namespace channels;

VXGUI_MULTIVERSION(void, ColorOver,
                   (uint8_t * to, size_t count, const std::array<uint8_t, 4>& color)) {
    const std::array<uint16_t, 4> s{color[0], color[1], color[2], color[3]};
    const auto rest = static_cast<uint16_t>(255 - s[3]);
    InWholeSteps(to, to, count, [&](uint8_t* d, const uint8_t*, size_t pixels) {
        for (size_t i = 0; i < 4 * pixels; i += 4) {
            for (size_t c = 0; c < 4; ++c) d[i + c] = Over(s[c], d[i + c], rest);
        }
    });
}

VXGUI_MULTIVERSION(void, WordsOver, (uint8_t * to, const uint8_t* from, size_t count)) {
    DrawOver(to, from, count);
}

VXGUI_MULTIVERSION(void, StraightOver, (uint8_t * to, const ARGB* from, size_t count)) {
    ARGB multiplied[kRun];
    for (size_t done = 0; done < count; done += kRun) {
        const size_t run = count - done < kRun ? count - done : kRun;
        Multiply(from + done, run, multiplied);
        DrawOver(to + 4 * done, reinterpret_cast<const uint8_t*>(multiplied), run);
    }
}

VXGUI_MULTIVERSION(void, CoveredOver,
                   (uint8_t* __restrict to, const uint8_t* __restrict coverage, size_t count,
                    const std::array<uint8_t, 4>& color)) {
    const std::array<uint16_t, 4> s{color[0], color[1], color[2], color[3]};
    for (size_t done = 0; done < count; done += kRun) {
        const size_t run = count - done < kRun ? count - done : kRun;
        uint32_t wide[kRun];  // each coverage four times, beside the bytes that it covers
        for (size_t i = 0; i < run; ++i) wide[i] = coverage[done + i] * 0x01010101u;
        const auto* m = reinterpret_cast<const uint8_t*>(wide);
        uint8_t* const d = to + 4 * done;
        for (size_t i = 0; i < 4 * run; i += 4) {
            for (size_t c = 0; c < 4; ++c) {
                const uint16_t part = m[i + c];
                const auto rest =
                    static_cast<uint16_t>(255 - Per255(static_cast<uint16_t>(s[3] * part)));
                d[i + c] = Over(Per255(static_cast<uint16_t>(s[c] * part)), d[i + c], rest);
            }
        }
    }
}

uint8_t* Bytes(ARGB* words) { return reinterpret_cast<uint8_t*>(words); }
const uint8_t* Bytes(const ARGB* words) { return reinterpret_cast<const uint8_t*>(words); }
std::array<uint8_t, 4> BytesOf(ARGB word) { return std::bit_cast<std::array<uint8_t, 4>>(word); }

// A byte as a part of 1.
constexpr std::array<double, 256> kParts = [] {
    std::array<double, 256> parts{};
    for (size_t i = 0; i < parts.size(); ++i) parts[i] = static_cast<double>(i) / 255;
    return parts;
}();

// The upper byte of a part of 1 in 16 bits, rounded as the library does.
ARGB UpperByte(double part) { return static_cast<ARGB>(part * 65535 + 0.5) >> 8; }

}  // namespace

ARGB WordOf(ARGB straight) {
    const double alpha = kParts[straight >> 24];
    ARGB word = UpperByte(alpha) << 24;
    for (int shift = 0; shift < 24; shift += 8) {
        word |= UpperByte(kParts[straight >> shift & 255] * alpha) << shift;
    }
    return word;
}

// The C library's own loop, which begins on whole lines of the cache.
void FillWords(ARGB* to, size_t count, ARGB word) {
    static_assert(sizeof(wchar_t) == sizeof(ARGB));
    std::wmemset(reinterpret_cast<wchar_t*>(to), static_cast<wchar_t>(word), count);
}

void DrawColor(ARGB* to, size_t count, ARGB word) {
    word >> 24 == 255 ? FillWords(to, count, word) : ColorOver(Bytes(to), count, BytesOf(word));
}

void DrawWords(ARGB* to, const ARGB* from, size_t count) {
    WordsOver(Bytes(to), Bytes(from), count);
}

void DrawStraight(ARGB* to, const ARGB* from, size_t count) {
    StraightOver(Bytes(to), from, count);
}

void DrawCovered(ARGB* to, const uint8_t* coverage, size_t count, ARGB word) {
    CoveredOver(Bytes(to), coverage, count, BytesOf(word));
}

}  // namespace vxgui::gdiplus
