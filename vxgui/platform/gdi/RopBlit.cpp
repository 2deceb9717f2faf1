#include "vxgui/platform/gdi/RopBlit.h"

#include <algorithm>
#include <optional>

#include "vxgui/platform/gdi/BlitReader.h"
#include "vxgui/platform/gdi/PixelRows.h"
#include "vxgui/platform/gdi/Record.h"
#include "vxgui/platform/gdi/Spans.h"
#include "vxgui/platform/gdi/WordCopy.h"

namespace vxgui::gdi {
namespace {

constexpr uint8_t kCopyCode = 0xCC;

// The words that a brush gives a target's pixels.
class BrushWords {
public:
    BrushWords(const DeviceContext& dc, const PixelTarget& target, const Brush& brush)
        : dc_(dc), brush_(brush), matcher_(target) {
        if (brush.IsSolid()) solid_ = matcher_.Word(SwapRedAndBlue(brush.Description().lbColor));
    }

    const std::optional<uint32_t>& Solid() const { return solid_; }

    void Read(int32_t x, int32_t y, int32_t count, uint32_t* words) {
        if (solid_) {
            std::fill_n(words, count, *solid_);
            return;
        }
        brush_.Row(dc_, x, y, count, words);
        for (int32_t i = 0; i < count; ++i) words[i] = matcher_.Word(words[i]);
    }

private:
    const DeviceContext& dc_;
    const Brush& brush_;
    ColorMatcher matcher_;
    std::optional<uint32_t> solid_;
};

// One operation at work on a target, span by span.
class RopPainter {
public:
    RopPainter(const DeviceContext& dc, const Rop3& rop, const Brush& brush)
        : target_(dc.Target()), rop_(rop), brush_(dc, target_, brush) {}

    void ReadFrom(const BlitReader* reader, PixelConverter* converter) {
        reader_ = reader;
        converter_ = converter;
    }

    void Span(int32_t x, int32_t y, int32_t count) {
        uint32_t pattern[kSpan];
        uint32_t source[kSpan];
        uint32_t destination[kSpan];
        if (rop_.UsesDestination()) LoadRow(target_, x, y, count, destination);
        if (rop_.UsesPattern()) brush_.Read(x, y, count, pattern);
        if (reader_) {
            reader_->Read(x, y, count, source);
            converter_->Convert(source, count);
        }
        Combine(pattern, source, destination, count);
        StoreRow(target_, x, y, count, destination);
    }

private:
    // An operand that isn't used is never loaded; the masks of its terms are 0, and the
    // destination stands in for it.
    void Combine(const uint32_t* pattern, const uint32_t* source, uint32_t* destination,
                 int32_t count) const {
        if (!rop_.UsesDestination()) std::fill_n(destination, count, 0u);
        rop_.Apply(rop_.UsesPattern() ? pattern : destination, reader_ ? source : destination,
                   destination, static_cast<size_t>(count));
    }

    const PixelTarget target_;
    const Rop3& rop_;
    BrushWords brush_;
    const BlitReader* reader_ = nullptr;
    PixelConverter* converter_ = nullptr;
};

bool IsWordCopy(const PixelTarget& target, const PixelTarget& source, const Rop3& rop) {
    return rop.Code() == kCopyCode && target.depth == 32 && source.depth == 32;
}

void FillWords(const PixelTarget& target, const RECT& part, uint32_t word) {
    for (int32_t y = part.top; y < part.bottom; ++y) {
        std::fill_n(target.Row32(y) + part.left, part.right - part.left, word);
    }
}

}  // namespace

bool RopBlit(const DeviceContext& dc, const BlitSource& source, BlitGeometry geometry,
             const Rop3& rop, const Brush& brush) {
    geometry.CutToTarget(dc);
    geometry.CutToSource(source.pixels);
    if (geometry.Empty() || (rop.UsesPattern() && brush.IsNull())) return true;
    const PixelTarget target = dc.Target();
    if (IsWordCopy(target, source.pixels, rop)) return CopyWords(dc, source.pixels, geometry);
    BlitReader reader(source.pixels, geometry);
    if (!reader.Prepare(target)) return false;
    PixelConverter converter(source.pixels, target, source.mono);
    RopPainter painter(dc, rop, brush);
    painter.ReadFrom(&reader, &converter);
    ForEachSpan(dc, geometry.Area(),
                [&](int32_t x, int32_t y, int32_t count) { painter.Span(x, y, count); });
    return true;
}

void RopFill(const DeviceContext& dc, const RECT& area, const Rop3& rop, const Brush& brush) {
    if (rop.UsesPattern() && brush.IsNull()) return;
    const PixelTarget target = dc.Target();
    const bool solid = brush.IsSolid() || !rop.UsesPattern();
    if (target.depth == 32 && solid && !rop.UsesDestination()) {
        uint32_t word = 0;
        const uint32_t color = SwapRedAndBlue(brush.Description().lbColor);
        rop.Apply(&color, &color, &word, 1);
        ForEachClipRect(dc, area, [&](const RECT& part) { FillWords(target, part, word); });
        return;
    }
    RopPainter painter(dc, rop, brush);
    ForEachSpan(dc, area, [&](int32_t x, int32_t y, int32_t count) { painter.Span(x, y, count); });
}

}  // namespace vxgui::gdi
