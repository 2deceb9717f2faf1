#pragma once

#include <cstdint>
#include <cstring>

namespace vxgui::ole {

/// The bits in which two words differ.
template <class Word>
Word Difference(const char* a, const char* b) {
    Word x, y;
    std::memcpy(&x, a, sizeof x);
    std::memcpy(&y, b, sizeof y);
    return x ^ y;
}

/// Whether two runs of as many bytes are the same. For short ones that mostly are, as names:
/// without a call, and without a jump that depends on them.
inline bool SameBytes(const char* a, const char* b, size_t size) {
    // The last word may begin in the one before it.
    if (size >= 8) {
        uint64_t bits = Difference<uint64_t>(a + size - 8, b + size - 8);
        for (size_t at = 0; at + 8 < size; at += 8) bits |= Difference<uint64_t>(a + at, b + at);
        return bits == 0;
    }
    if (size >= 4)
        return (Difference<uint32_t>(a, b) | Difference<uint32_t>(a + size - 4, b + size - 4)) == 0;
    size_t at = 0;
    while (at < size && a[at] == b[at]) ++at;
    return at == size;
}

}  // namespace vxgui::ole
