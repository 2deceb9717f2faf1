#include "vxgui/base/CaseFolding.h"

#include <algorithm>
#include <cstring>

#include "vxgui/base/String.h"

namespace vxgui {
namespace {

char16_t FoldLetter(char16_t c) {
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 32;
    if (c >= 0x100 && c <= 0x12F) return c | 1;
    if (c >= 0x14A && c <= 0x177) return c | 1;
    if (c >= 0x391 && c <= 0x3AB && c != 0x3A2) return c + 32;
    if (c >= 0x410 && c <= 0x42F) return c + 32;
    if (c >= 0x400 && c <= 0x40F) return c + 80;
    return c;
}

template <class Unit>
Unit FoldAscii(Unit c) {
    return c >= 'A' && c <= 'Z' ? static_cast<Unit>(c + 32) : c;
}

inline char16_t Fold(char16_t c) { return c >= 0x80 ? FoldLetter(c) : FoldAscii(c); }
inline uint8_t Fold(char c) { return FoldAscii(static_cast<uint8_t>(c)); }

// An odd factor that a file's author can't know: it lies where the program was loaded.
uint64_t Factor() {
    static const char place = 0;
    return (reinterpret_cast<uintptr_t>(&place) * 0x9E3779B97F4A7C15u) | 1;
}

template <class View>
bool Equal(View a, View b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](auto x, auto y) { return x == y || Fold(x) == Fold(y); });
}

constexpr size_t kFour = 4;

uint64_t FourAt(const char16_t* text) {
    uint64_t units;
    std::memcpy(&units, text, sizeof units);
    return units;
}

// All units of a text of up to three.
uint64_t FewUnits(std::u16string_view text) {
    if (text.empty()) return 0;
    return text.front() | uint64_t{text[text.size() / 2]} << 16 | uint64_t{text.back()} << 32;
}

uint64_t FoldFour(uint64_t units) {
    constexpr uint64_t kBeyondAscii = 0xFF80FF80FF80FF80, kCaseBits = 0x0020002000200020;
    if ((units & kBeyondAscii) == 0) [[likely]]
        return units | kCaseBits;
    uint64_t folded = 0;
    for (int shift = 0; shift < 64; shift += 16)
        folded |= uint64_t{Fold(static_cast<char16_t>(units >> shift))} << shift;
    return folded;
}

}  // namespace

// Simple case folding of the letters that define files use: ASCII, Latin-1, Latin Extended-A,
// Greek, Cyrillic (Unicode CaseFolding.txt, status C, the regular runs).
char16_t FoldUnit(char16_t unit) { return Fold(unit); }

String String::Lower() const {
    std::u16string folded = units_;
    for (char16_t& unit : folded) unit = Fold(unit);
    return folded;
}

bool EqualFolded(std::u16string_view a, std::u16string_view b) { return Equal(a, b); }
bool EqualFolded(std::string_view a, std::string_view b) { return Equal(a, b); }

// Four at a time; the last four may begin in those before them. ASCII letters differ in one bit by
// their case; others that do fall on one hash.
uint64_t FoldedHash(std::u16string_view text) {
    static const uint64_t factor = Factor();
    const auto mix = [](uint64_t hash, uint64_t units) {
        hash = (hash ^ FoldFour(units)) * factor;
        return hash ^ hash >> 32;
    };
    const size_t size = text.size();
    uint64_t hash = size * factor;
    if (size < kFour) return mix(hash, FewUnits(text));
    for (size_t at = 0; at + kFour < size; at += kFour) hash = mix(hash, FourAt(text.data() + at));
    return mix(hash, FourAt(text.data() + size - kFour));
}

// Eight at a time. Letters differ in one bit by their case; others that do fall on one hash.
uint64_t FoldedHash(std::string_view text) {
    static const uint64_t factor = Factor();
    constexpr uint64_t kCaseBits = 0x2020202020202020;
    uint64_t hash = text.size();
    for (size_t at = 0, size = 0; at < text.size(); at += size) {
        uint64_t bytes = 0;
        size = std::min(text.size() - at, sizeof bytes);
        std::memcpy(&bytes, text.data() + at, size);
        hash = (hash ^ (bytes | kCaseBits)) * factor;
        hash ^= hash >> 32;
    }
    return hash;
}

}  // namespace vxgui
