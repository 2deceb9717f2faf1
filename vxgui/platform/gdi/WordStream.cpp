#include "vxgui/platform/gdi/WordStream.h"

#include <cstring>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace vxgui::gdi {

#if defined(__SSE2__)

namespace {

constexpr size_t kWords = sizeof(__m128i) / sizeof(uint32_t);

void WriteOne(const uint32_t* from, uint32_t* to) {
    int word;
    std::memcpy(&word, from, sizeof word);
    _mm_stream_si32(reinterpret_cast<int*>(to), word);
}

bool IsAligned(const uint32_t* to) {
    return reinterpret_cast<uintptr_t>(to) % sizeof(__m128i) == 0;
}

}  // namespace

// The ends go by word: a line of which one part was stored otherwise would be fetched after all.
void WordStream::Write(const uint32_t* from, uint32_t* to, size_t count) {
    const uint32_t* const end = to + count;
    for (; to != end && !IsAligned(to); ++to, ++from) WriteOne(from, to);
    for (; end - to >= static_cast<ptrdiff_t>(kWords); to += kWords, from += kWords) {
        _mm_stream_si128(reinterpret_cast<__m128i*>(to),
                         _mm_loadu_si128(reinterpret_cast<const __m128i*>(from)));
    }
    for (; to != end; ++to, ++from) WriteOne(from, to);
}

WordStream::~WordStream() { _mm_sfence(); }

#else

void WordStream::Write(const uint32_t* from, uint32_t* to, size_t count) {
    std::memcpy(to, from, count * sizeof *to);
}

WordStream::~WordStream() = default;

#endif

}  // namespace vxgui::gdi
