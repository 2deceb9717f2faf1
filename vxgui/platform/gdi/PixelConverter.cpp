#include "vxgui/platform/gdi/PixelConverter.h"

#include <algorithm>

#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi/Record.h"

namespace vxgui::gdi {
namespace {

constexpr uint32_t kColorBits = 0x00FFFFFF;

int Channel(uint32_t color, int shift) { return static_cast<int>(color >> shift & 0xFF); }

int Distance(uint32_t a, uint32_t b) {
    int sum = 0;
    for (const int shift : {0, 8, 16}) {
        const int difference = Channel(a, shift) - Channel(b, shift);
        sum += difference * difference;
    }
    return sum;
}

bool SameColors(const ColorTable* a, const ColorTable* b) {
    if (!a || !b) return a == b;
    return a == b ||
           (a->count == b->count &&
            std::equal(a->colors.begin(), a->colors.begin() + a->count, b->colors.begin()));
}

// 24 and 32 bits differ by the alpha byte alone, which reads as 0 and isn't stored.
bool SameForm(const PixelTarget& a, const PixelTarget& b) {
    if (a.depth >= 24 && b.depth >= 24) return true;
    return a.depth == b.depth && SameColors(a.colors, b.colors);
}

}  // namespace

MonoColors MonoColorsOf(const DeviceContext& dc, const DeviceContext* source) {
    MonoColors mono;
    mono.zero = SwapRedAndBlue(dc.state.textColor);
    mono.one = SwapRedAndBlue(dc.state.backColor);
    if (source) mono.key = SwapRedAndBlue(source->state.backColor);
    return mono;
}

uint32_t ColorMatcher::Search(uint32_t color) const {
    if (!colors_) return Distance(color, 0xFFFFFF) < Distance(color, 0) ? 1 : 0;
    uint32_t best = 0;
    int least = INT32_MAX;
    for (int i = 0; i < colors_->count && least > 0; ++i) {
        const int distance = Distance(color, colors_->colors[static_cast<size_t>(i)]);
        if (distance >= least) continue;
        least = distance;
        best = static_cast<uint32_t>(i);
    }
    return best;
}

uint32_t ColorMatcher::Word(uint32_t color) {
    color &= kColorBits;
    if (depth_ >= 24) return color;
    if (color != lastColor_) {
        lastColor_ = color;
        lastWord_ = Search(color);
    }
    return lastWord_;
}

uint32_t ColorOf(const PixelTarget& from, uint32_t word, const MonoColors& mono) {
    if (from.depth >= 24) return word & kColorBits;
    if (from.colors) return from.colors->colors[word];
    return word != 0 ? mono.one : mono.zero;
}

PixelConverter::PixelConverter(const PixelTarget& from, const PixelTarget& to,
                               const MonoColors& mono)
    : mono_(mono), matcher_(to), way_(Way::Match) {
    if (SameForm(from, to)) {
        way_ = Way::Same;
    } else if (from.depth <= 8) {
        way_ = Way::Table;
        FillTable(from);
    }
}

uint32_t PixelConverter::WordOf(uint32_t color) {
    if (matcher_.Monochrome()) return (color & kColorBits) == mono_.key ? 1 : 0;
    return matcher_.Word(color);
}

void PixelConverter::FillTable(const PixelTarget& from) {
    const uint32_t count = 1u << from.depth;
    for (uint32_t word = 0; word < count; ++word) table_[word] = WordOf(ColorOf(from, word, mono_));
}

void PixelConverter::Convert(uint32_t* words, int32_t count) {
    if (way_ == Way::Same) return;
    for (int32_t i = 0; i < count; ++i) {
        words[i] = way_ == Way::Table ? table_[words[i]] : WordOf(words[i]);
    }
}

}  // namespace vxgui::gdi
