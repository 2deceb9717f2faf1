#include "vxgui/platform/gdiplus/text/LineGlyphs.h"

#include <algorithm>

namespace vxgui::gdiplus {
namespace {

struct UnitRange {
    char16_t first, last;
};
// Han, kana, hangul and what is written with them (Unicode's blocks); the last is the upper halves
// of the ideographs beyond 16 bits.
constexpr UnitRange kWide[] = {{0x1100, 0x11FF}, {0x2E80, 0xA4CF}, {0xAC00, 0xD7AF},
                               {0xF900, 0xFAFF}, {0xFE30, 0xFE4F}, {0xFF01, 0xFF60},
                               {0xFFE0, 0xFFE6}, {0xD840, 0xD8BF}};

bool IsWide(char16_t unit) {
    return std::any_of(std::begin(kWide), std::end(kWide), [unit](const UnitRange& range) {
        return unit >= range.first && unit <= range.last;
    });
}

// Collects the parts between tabs.
class Collector {
public:
    Collector(std::u16string_view text, size_t mark) : text_(text), mark_(mark) {}

    void Append(const ShapedString& shaped, size_t first, double x) {
        for (const StringGlyph& glyph : shaped.glyphs) {
            const size_t unit = first + static_cast<size_t>(glyph.unit);
            if (unit == mark_ && line.markWidth == 0) {
                line.markLeft = x;
                line.markWidth = glyph.advance;
            }
            if (glyph.ink) {
                line.glyphs.push_back({glyph.index, glyph.face, IsWide(text_[unit]), x + glyph.dx,
                                       glyph.dy, glyph.advance});
            }
            x += glyph.advance;
        }
    }

    LineGlyphs line;

private:
    const std::u16string_view text_;
    const size_t mark_;
};

}  // namespace

LineGlyphs MakeLine(const std::vector<ShapedString>& pieces, const StringTabs& tabs,
                    std::u16string_view text, size_t mark, bool rightToLeft) {
    std::vector<double> starts;
    double x = 0;
    for (const ShapedString& piece : pieces) {
        if (!starts.empty()) x = tabs.After(x);
        starts.push_back(x);
        x += piece.width;
    }
    Collector collector(text, mark);
    size_t first = 0;
    for (size_t i = 0; i < pieces.size(); ++i) {
        const double left = rightToLeft ? x - starts[i] - pieces[i].width : starts[i];
        collector.Append(pieces[i], first, left);
        first += pieces[i].advances.size() + 1;
    }
    collector.line.width = x;
    return std::move(collector.line);
}

Overhang OverhangOf(const StringFace& face, const LineGlyphs& line) {
    Overhang over;
    if (line.glyphs.empty()) return over;
    const auto reach = [&](const LineGlyphs::Glyph& glyph) {
        const DrawnFace& drawn = face.Face().Face(glyph.face);
        const auto& used = drawn.face;
        if (!used || FT_Load_Glyph(used->Handle(), glyph.index, FT_LOAD_NO_SCALE) != 0) return;
        const FT_Glyph_Metrics& metrics = used->Handle()->glyph->metrics;
        const double scale = face.Em() / used->Design().unitsPerEm;
        const double slope = drawn.oblique ? kObliqueSlope * scale : 0;
        const auto top = static_cast<double>(metrics.horiBearingY);
        const auto bottom = top - static_cast<double>(metrics.height);
        const double left = glyph.x + static_cast<double>(metrics.horiBearingX) * scale;
        const double right = left + static_cast<double>(metrics.width) * scale;
        over.left = std::max(over.left, -(left + slope * std::min(bottom, 0.0)));
        over.right = std::max(over.right, right + slope * std::max(top, 0.0) - line.width);
    };
    reach(line.glyphs.front());
    reach(line.glyphs.back());
    return over;
}

}  // namespace vxgui::gdiplus
