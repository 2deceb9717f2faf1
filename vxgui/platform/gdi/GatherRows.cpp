#include "vxgui/platform/gdi/GatherRows.h"

#include <algorithm>

#include "vxgui/pixels/Multiversion.h"
#include "vxgui/platform/gdi/GatherWords.h"

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace vxgui::gdi {
namespace {

void GatherEachRow(const SourceRows& rows, const ColumnTable& table, uint32_t* words,
                   size_t pitch) {
    for (size_t y = 0; y < rows.count; ++y) {
        GatherWords(rows.first + static_cast<ptrdiff_t>(y) * rows.stride, table.columns.data(),
                    table.columns.size(), words + y * pitch);
    }
}

#if defined(__x86_64__)

constexpr size_t kLanes = 16;
/// How many words of a row registers hold for a table.
constexpr size_t kWindow = 4 * kLanes;

VXGUI_TARGET_AVX512 inline __mmask16 First(size_t count) {
    return static_cast<__mmask16>(count < kLanes ? (1u << count) - 1 : 0xFFFF);
}

VXGUI_TARGET_AVX512 inline __mmask16 Of(size_t count, size_t from) {
    return count > from ? First(count - from) : __mmask16{0};
}

/// The words of a row that a table's columns lie in. A permutation takes words from two registers,
/// by five bits of their places.
template <bool kWide>
struct Window {
    VXGUI_TARGET_AVX512 Window(const uint8_t* row, size_t size)
        : a(_mm512_maskz_loadu_epi32(First(size), row)),
          b(_mm512_maskz_loadu_epi32(Of(size, kLanes), row + 4 * kLanes)) {
        if constexpr (kWide) {
            c = _mm512_maskz_loadu_epi32(Of(size, 2 * kLanes), row + 8 * kLanes);
            d = _mm512_maskz_loadu_epi32(Of(size, 3 * kLanes), row + 12 * kLanes);
        }
    }

    VXGUI_TARGET_AVX512 __m512i At(__m512i places) const {
        const __m512i low = _mm512_permutex2var_epi32(a, places, b);
        if constexpr (!kWide) return low;
        const __m512i high = _mm512_permutex2var_epi32(c, places, d);
        const __m512i upper = _mm512_set1_epi32(2 * kLanes);
        return _mm512_mask_mov_epi32(low, _mm512_test_epi32_mask(places, upper), high);
    }

    __m512i a, b, c, d;
};

template <bool kWide>
VXGUI_TARGET_AVX512 void PermuteRows(const SourceRows& rows, const ColumnTable& table,
                                     uint32_t* words, size_t pitch) {
    const int32_t* const columns = table.columns.data();
    const size_t count = table.columns.size(), whole = count / kLanes * kLanes;
    const auto size = static_cast<size_t>(table.range.Size());
    const __mmask16 rest = First(count - whole);
    const __m512i first = _mm512_set1_epi32(table.range.least);
    const uint8_t* row = rows.first + ptrdiff_t{table.range.least} * 4;
    for (size_t y = 0; y < rows.count; ++y, row += rows.stride, words += pitch) {
        const Window<kWide> window(row, size);
        for (size_t i = 0; i < whole; i += kLanes) {
            const __m512i at = _mm512_loadu_si512(columns + i);
            _mm512_storeu_si512(words + i, window.At(_mm512_sub_epi32(at, first)));
        }
        const __m512i at = _mm512_maskz_loadu_epi32(rest, columns + whole);
        _mm512_mask_storeu_epi32(words + whole, rest, window.At(_mm512_sub_epi32(at, first)));
    }
}

// Written by hand: compilers see no permutation in a loop over a table.
VXGUI_TARGET_AVX512 void GatherByPermuting(const SourceRows& rows, const ColumnTable& table,
                                           uint32_t* words, size_t pitch) {
    const int64_t size = table.range.Size();
    const auto gather = size <= int64_t{kWindow / 2} ? PermuteRows<false>
                        : size <= int64_t{kWindow}   ? PermuteRows<true>
                                                     : GatherEachRow;
    gather(rows, table, words, pitch);
}

#endif

constinit auto* chosen = GatherEachRow;

void Choose([[maybe_unused]] InstructionSet set) {
#if defined(__x86_64__)
    chosen = set == InstructionSet::Avx512 ? GatherByPermuting : GatherEachRow;
#endif
}

const struct Choice : SetDependent {
    Choice() : SetDependent(Choose) {}
} kChoice;

}  // namespace

void GatherRows(const SourceRows& rows, const ColumnTable& table, uint32_t* words, size_t pitch) {
    chosen(rows, table, words, pitch);
}

}  // namespace vxgui::gdi
