#include "vxgui/base/CaseFolding.h"

#include <algorithm>

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

inline char16_t Fold(char16_t c) {
    if (c >= 0x80) return FoldLetter(c);
    return c >= u'A' && c <= u'Z' ? c + 32 : c;
}

// An odd factor that a file's author can't know: it lies where the program was loaded.
uint64_t Factor() {
    static const char place = 0;
    return (reinterpret_cast<uintptr_t>(&place) * 0x9E3779B97F4A7C15u) | 1;
}

}  // namespace

// Simple case folding of the letters that define files use: ASCII, Latin-1, Latin Extended-A,
// Greek, Cyrillic (Unicode CaseFolding.txt, status C, the regular runs).
char16_t FoldUnit(char16_t unit) { return Fold(unit); }

bool EqualFolded(std::u16string_view a, std::u16string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char16_t x, char16_t y) { return x == y || Fold(x) == Fold(y); });
}

uint64_t FoldedHash(std::u16string_view text) {
    const uint64_t factor = Factor();
    uint64_t hash = text.size();
    for (const char16_t unit : text) hash = (hash + Fold(unit)) * factor;
    return hash ^ hash >> 32;
}

}  // namespace vxgui
