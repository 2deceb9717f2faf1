#include "vxgui/pixels/PixelPairs.h"

#include <algorithm>
#include <cstring>

#include "vxgui/pixels/Multiversion.h"

namespace vxgui {

namespace {

constexpr size_t kVector = 16;   ///< pixels in a vector
constexpr size_t kTogether = 8;  ///< pairs in a vector
constexpr size_t kWindow = 2 * kVector;

/// Where the pairs of a window begin; those of the last one end with the row's.
size_t Begin(size_t window, size_t count) {
    return std::min(window * kTogether, count - kTogether);
}

// Two vectors of a row lie in registers, and one operation takes eight pairs out of them. A load
// for each pair takes twice as long.
#if defined(__x86_64__) && !defined(__clang__)  // which has no such operation of its own
bool HasWindows() { return UsedInstructionSet() == InstructionSet::Avx512; }

VXGUI_TARGET_AVX512 void TakeFromWindows(const ARGB* row, const ScratchVector<uint32_t>& windows,
                                         const uint32_t* lanes, uint64_t* pairs, size_t count) {
    using Vector __attribute__((vector_size(4 * kVector), may_alias, aligned(1))) = uint32_t;
    for (size_t i = 0; i < windows.size(); ++i) {
        const Vector* const window = reinterpret_cast<const Vector*>(row + windows[i]);
        const Vector* const chosen = reinterpret_cast<const Vector*>(lanes + i * kVector);
        Vector* const taken = reinterpret_cast<Vector*>(pairs + Begin(i, count));
        *taken = __builtin_shuffle(window[0], window[1], *chosen);
    }
}
#else
bool HasWindows() { return false; }
void TakeFromWindows(const ARGB*, const ScratchVector<uint32_t>&, const uint32_t*, uint64_t*,
                     size_t) {}
#endif

}  // namespace

PixelPairs::PixelPairs(const ScratchVector<uint32_t>& indices, size_t length) : indices_(indices) {
    if (!HasWindows() || !FindWindows(length)) windows_.clear();
}

// Windows begin at whole vectors, of which the cache gives two at once, where the pairs then fit.
bool PixelPairs::FindWindows(size_t length) {
    if (Count() < kTogether || length < kWindow) return false;
    for (size_t i = 0; i * kTogether < Count(); ++i) {
        const uint32_t* const indices = &indices_[Begin(i, Count())];
        const size_t first = indices[0], last = indices[kTogether - 1] + 1;
        size_t window = first / kVector * kVector;
        if (last - window >= kWindow) window = first;
        window = std::min(window, length - kWindow);
        if (last - window >= kWindow) return false;
        windows_.push_back(static_cast<uint32_t>(window));
        for (size_t k = 0; k < kTogether; ++k) {
            const auto lane = static_cast<uint32_t>(indices[k] - window);
            lanes_.insert(lanes_.end(), {lane, lane + 1});
        }
    }
    return true;
}

void PixelPairs::Take(const ARGB* row, uint64_t* pairs) const {
    if (!windows_.empty()) return TakeFromWindows(row, windows_, lanes_.data(), pairs, Count());
    const size_t count = Count();
    const uint32_t* const indices = indices_.data();
#pragma GCC unroll 4
    for (size_t i = 0; i < count; ++i) std::memcpy(pairs + i, row + indices[i], sizeof *pairs);
}

}  // namespace vxgui
