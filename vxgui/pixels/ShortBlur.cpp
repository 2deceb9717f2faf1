#include "vxgui/pixels/ShortBlur.h"

#include <algorithm>
#include <cstring>

#include "vxgui/pixels/Lanes.h"
#include "vxgui/pixels/Multiversion.h"
#include "vxgui/pixels/ShortWeights.h"

namespace vxgui {

namespace {

using short_weights::kBlock;

VXGUI_MULTIVERSION(void, Widen,
                   (const uint8_t* __restrict bytes, uint16_t* __restrict words, size_t count)) {
    for (size_t i = 0; i < count; ++i) words[i] = bytes[i];
}

VXGUI_MULTIVERSION(void, WidenAlpha,
                   (const ARGB* __restrict pixels, uint16_t* __restrict words, size_t count)) {
    for (size_t i = 0; i < count; ++i) {
        words[i] = static_cast<uint16_t>(lanes::Alpha(lanes::Load(pixels[i])));
    }
}

VXGUI_MULTIVERSION(void, StoreAlpha,
                   (const uint8_t* __restrict alphas, ARGB* __restrict pixels, size_t count)) {
    for (size_t i = 0; i < count; ++i) lanes::Store(pixels[i], uint32_t{alphas[i]} << 24);
}

}  // namespace

ShortBlur::ShortBlur(const BlurReach& reach, const ShortKernel& horizontal,
                     const ShortKernel& vertical, bool alphaAlone)
    : reach_(reach),
      horizontal_(horizontal),
      vertical_(vertical),
      channels_(alphaAlone ? 1 : sizeof(ARGB)),
      lanes_((reach.target.width * channels_ + kBlock - 1) / kBlock * kBlock),
      ringRows_(2 * vertical.reach + 1),
      pitch_(lanes_ + kBlock),
      samples_(lanes_ + 2 * horizontal.reach * channels_),
      ring_((ringRows_ + 1) * pitch_),
      results_(lanes_) {}

void ShortBlur::Run() {
    size_t filtered = 0;
    for (size_t row = 0; row < reach_.target.height; ++row) {
        const size_t needed =
            std::min(reach_.top + row + vertical_.reach + 1, reach_.source.height);
        if (filtered + ringRows_ < needed) filtered = needed - ringRows_;
        while (filtered < needed) FilterAcross(filtered++);
        FilterDown(row);
    }
}

// What lies outside the picture stays 0.
void ShortBlur::FilterAcross(size_t row) {
    const size_t margin = horizontal_.reach * channels_, width = reach_.source.width;
    uint16_t* const place = samples_.data() + (horizontal_.reach - reach_.left) * channels_;
    const ARGB* const pixels = reach_.source.Row(row);
    if (channels_ == 1) {
        WidenAlpha(pixels, place, width);
    } else {
        Widen(reinterpret_cast<const uint8_t*>(pixels), place, width * channels_);
    }
    short_weights::Across(samples_.data() + margin, horizontal_, channels_, RingRow(row), lanes_);
}

void ShortBlur::FilterDown(size_t row) {
    short_weights::Taps taps;
    for (size_t i = 0; i < ringRows_; ++i) {
        const size_t at = reach_.top + row + i - vertical_.reach;  // above the first it wraps
        taps[i] = at < reach_.source.height ? RingRow(at) : &ring_[ringRows_ * pitch_];
    }
    short_weights::Down(taps, vertical_, results_.data(), lanes_);
    ARGB* const to = reach_.target.Row(row);
    if (channels_ > 1) {
        std::memcpy(static_cast<void*>(to), results_.data(), reach_.target.width * channels_);
        return;
    }
    StoreAlpha(results_.data(), to, reach_.target.width);
}

}  // namespace vxgui
