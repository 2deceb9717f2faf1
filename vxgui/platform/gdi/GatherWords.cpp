#include "vxgui/platform/gdi/GatherWords.h"

#include "vxgui/pixels/Multiversion.h"

#if defined(__x86_64__)
#include <immintrin.h>
#include <algorithm>
#endif

namespace vxgui::gdi {
namespace {

using Word __attribute__((may_alias, aligned(1))) = uint32_t;

// Four at a time and not vectorised (the build sees to it): processors gather word by word, and
// putting the words together costs more than it saves.
[[gnu::always_inline]] inline void GatherFour(const uint8_t* row, const int32_t* columns,
                                              size_t count, uint32_t* words) {
    // `auto` would take it to be aligned.
    const Word* const from = reinterpret_cast<const Word*>(row);
    size_t i = 0;
    for (; i + 4 <= count; i += 4) {
        const uint32_t a = from[columns[i]], b = from[columns[i + 1]];
        const uint32_t c = from[columns[i + 2]], d = from[columns[i + 3]];
        words[i] = a;
        words[i + 1] = b;
        words[i + 2] = c;
        words[i + 3] = d;
    }
    for (; i < count; ++i) words[i] = from[columns[i]];
}

#if defined(__x86_64__)

constexpr size_t kLanes = 16;

/// The lanes up to number `last`; none for a negative one.
VXGUI_TARGET_AVX512 inline __mmask16 UpTo(int64_t last) {
    return static_cast<__mmask16>(last < 0 ? 0 : (uint32_t{2} << std::min<int64_t>(last, 15)) - 1);
}

/// The columns of a picture that is stretched, or not shrunk below half, lie in few words: 16 of
/// them are a permutation of those.
VXGUI_TARGET_AVX512 void GatherByPermuting(const uint8_t* row, const int32_t* columns, size_t count,
                                           uint32_t* words) {
    size_t i = 0;
    for (; i + kLanes <= count; i += kLanes) {
        const int32_t low = std::min(columns[i], columns[i + kLanes - 1]);
        const int64_t last = int64_t{std::max(columns[i], columns[i + kLanes - 1])} - low;
        const __m512i places =
            _mm512_sub_epi32(_mm512_loadu_si512(columns + i), _mm512_set1_epi32(low));
        const __m512i most = _mm512_set1_epi32(static_cast<int>(last));
        if (last >= int64_t{2 * kLanes} || _mm512_cmpgt_epu32_mask(places, most) != 0) {
            GatherFour(row, columns + i, kLanes, words + i);
            continue;
        }
        const uint8_t* const from = row + ptrdiff_t{low} * 4;
        const __m512i a = _mm512_maskz_loadu_epi32(UpTo(last), from);
        const __m512i b = _mm512_maskz_loadu_epi32(UpTo(last - int64_t{kLanes}), from + 4 * kLanes);
        _mm512_storeu_si512(words + i, _mm512_permutex2var_epi32(a, places, b));
    }
    GatherFour(row, columns + i, count - i, words + i);
}

#endif

VXGUI_MULTIVERSION_BESIDE(GatherByPermuting, void, Gather,
                          (const uint8_t* row, const int32_t* columns, size_t count,
                           uint32_t* words)) {
    GatherFour(row, columns, count, words);
}

}  // namespace

void GatherWords(const uint8_t* row, const int32_t* columns, size_t count, uint32_t* words) {
    Gather(row, columns, count, words);
}

}  // namespace vxgui::gdi
