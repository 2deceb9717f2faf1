#include "vxgui/platform/gdi/LaidRows.h"

#include <algorithm>

namespace vxgui::gdi {
namespace {

/// Each row begins at a line of the cache, as the memory does.
size_t PitchFor(size_t width) {
    constexpr size_t kLine = 16;
    return (std::max<size_t>(width, 1) + kLine - 1) / kLine * kLine;
}

}  // namespace

LaidRows::LaidRows(const MosaicView& mosaic)
    : mosaic_(mosaic),
      pitch_(PitchFor(mosaic.Width())),
      atOnce_(std::clamp<size_t>(kNearWords / pitch_, 1, kMostAtOnce)) {
    if (!mosaic.HasOneBand()) return;
    const auto rows = static_cast<size_t>(mosaic.RowRange().Size());
    if (rows > kMostRows || rows * pitch_ > kMostWords) return;
    kept_ = rows;
    first_ = mosaic.RowRange().least;
}

size_t LaidRows::Words() const { return std::max(kept_, atOnce_) * pitch_; }

void LaidRows::Use(uint32_t* words) {
    words_ = words;
    std::fill_n(laid_.data(), kept_, false);
}

void LaidRows::Ready(size_t top, size_t end) {
    top_ = top;
    kept_ > 0 ? ReadyKept(top, end) : ReadyFresh(top, end);
}

void LaidRows::ReadyKept(size_t top, size_t end) {
    for (size_t y = top; y < end; ++y) {
        const auto row = static_cast<size_t>(mosaic_.Rows()[y] - first_);
        uint32_t* const words = words_ + row * pitch_;
        shown_[y - top] = words;
        if (laid_[row]) continue;
        const size_t run = mosaic_.RunFrom(y, end);
        mosaic_.Lay(y, run, words, pitch_);
        std::fill_n(&laid_[row], run, true);
    }
}

void LaidRows::ReadyFresh(size_t top, size_t end) {
    uint32_t* next = words_;
    for (size_t y = top; y < end;) {
        if (y > top && mosaic_.SameRow(y, y - 1)) {
            shown_[y - top] = shown_[y - 1 - top];
            ++y;
            continue;
        }
        const size_t run = mosaic_.RunFrom(y, end);
        mosaic_.Lay(y, run, next, pitch_);
        for (const size_t stop = y + run; y < stop; ++y, next += pitch_) shown_[y - top] = next;
    }
}

}  // namespace vxgui::gdi
