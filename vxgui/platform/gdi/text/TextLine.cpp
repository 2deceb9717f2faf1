#include "vxgui/platform/gdi/text/TextLine.h"

#include <algorithm>

#include "vxgui/platform/gdi/text/Shaper.h"

namespace vxgui::gdi {
namespace {

TextSpacing SpacingOf(const DcState& state) {
    return {state.characterExtra, state.breakExtra, state.breakCount, 0, nullptr};
}

/// Floor division, for places left of the origin too.
int64_t FloorDivide(int64_t value, int64_t divisor) {
    const int64_t quotient = value / divisor;
    return value % divisor < 0 ? quotient - 1 : quotient;
}

}  // namespace

TextSetup::TextSetup(const DeviceContext& context)
    : TextSetup(context, context.state.font->Description()) {}

TextSetup::TextSetup(const DeviceContext& context, const LOGFONTA& record)
    : engine(TextEngine::Here()), font(engine.Realize(record)), spacing(SpacingOf(context.state)) {}

ShapedTextRef TextSetup::Shaped(std::u16string_view text, int breaksBefore) const {
    TextSpacing part = spacing;
    part.breaksBefore = breaksBefore;
    return WithSpacing(Shape(engine, *font, text, rightToLeft), text, part);
}

int64_t TabStops::After(int64_t x) const {
    for (int i = 0; i < count; ++i) {
        if (positions[i] > x) return positions[i];
    }
    const int64_t step = std::max(1, distance);
    return (FloorDivide(x, step) + 1) * step;
}

int64_t TextLine::LeftOf(size_t unit, int32_t* advance) const {
    *advance = 0;
    for (const LinePart& part : parts) {
        if (unit < part.first || unit >= part.first + part.shaped->advances.size()) continue;
        int64_t x = part.x;
        for (const ShapedGlyph& glyph : part.shaped->glyphs) {
            if (part.first + static_cast<size_t>(glyph.unit) == unit) {
                *advance = part.shaped->advances[unit - part.first];
                return x;
            }
            x += glyph.advance;
        }
    }
    return width;
}

TextLine MakeLine(const TextSetup& setup, std::u16string_view text) {
    TextLine line;
    line.parts.push_back({setup.Shaped(text), 0, 0});
    line.width = line.parts[0].shaped->width;
    return line;
}

TextLine MakeTabbedLine(const TextSetup& setup, std::u16string_view text, const TabStops& stops,
                        int64_t origin) {
    TextLine line;
    int breaks = 0;
    for (size_t at = 0; at <= text.size();) {
        const size_t tab = std::min(text.find(u'\t', at), text.size());
        if (tab > at) {
            const std::u16string_view part = text.substr(at, tab - at);
            line.parts.push_back({setup.Shaped(part, breaks), line.width, at});
            line.width += line.parts.back().shaped->width;
            breaks += static_cast<int>(std::count(part.begin(), part.end(), kBreakCharacter));
        }
        if (tab < text.size()) line.width = stops.After(line.width - origin) + origin;
        at = tab + 1;
    }
    return line;
}

}  // namespace vxgui::gdi
