#include "vxgui/platform/gdi/text/CoveragePaint.h"

#include <algorithm>

#include "vxgui/pixels/CoverageMix.h"
#include "vxgui/platform/gdi/PixelRows.h"

namespace vxgui::gdi {
namespace {

constexpr int32_t kRun = 256;

uint32_t BlendChannel(uint32_t target, uint32_t color, uint32_t coverage, int shift) {
    const uint32_t d = target >> shift & 0xFF;
    const uint32_t c = color >> shift & 0xFF;
    return (d * (255 - coverage) + c * coverage + 127) / 255 << shift;
}

uint32_t BlendColor(uint32_t target, uint32_t color, uint32_t coverage) {
    return BlendChannel(target, color, coverage, 0) | BlendChannel(target, color, coverage, 8) |
           BlendChannel(target, color, coverage, 16);
}

}  // namespace

CoveragePaint::CoveragePaint(const PixelTarget& target, uint32_t color)
    : target_(target), color_(color), matcher_(target) {}

void CoveragePaint::BlendWords(int32_t x, int32_t y, int32_t count, const uint8_t* coverage) {
    const MonoColors mono;
    uint32_t words[kRun];
    for (int32_t done = 0; done < count; done += kRun) {
        const int32_t run = std::min(kRun, count - done);
        LoadRow(target_, x + done, y, run, words);
        for (int32_t i = 0; i < run; ++i) {
            uint32_t part = coverage[done + i];
            if (target_.depth == 1) part = part >= 128 ? 255 : 0;
            if (part == 0) continue;
            words[i] = matcher_.Word(BlendColor(ColorOf(target_, words[i], mono), color_, part));
        }
        StoreRow(target_, x + done, y, run, words);
    }
}

void CoveragePaint::Row(int32_t x, int32_t y, int32_t count, const uint8_t* coverage) {
    if (target_.depth != 32) return BlendWords(x, y, count, coverage);
    MixByCoverage({coverage, static_cast<size_t>(count)},
                  reinterpret_cast<ARGB*>(target_.Row(y)) + x,
                  ARGBFromValue(static_cast<int32_t>(color_)));
}

void CoveragePaint::Row(int32_t x, int32_t y, int32_t count, uint8_t coverage) {
    uint8_t bytes[kRun];
    std::fill_n(bytes, std::clamp(count, 0, kRun), coverage);
    for (int32_t done = 0; done < count; done += kRun)
        Row(x + done, y, std::min(kRun, count - done), bytes);
}

void CoveragePaint::Fill(const RECT& rect) {
    for (int32_t y = rect.top; y < rect.bottom; ++y) {
        Row(rect.left, y, rect.right - rect.left, uint8_t{255});
    }
}

}  // namespace vxgui::gdi
