#pragma once

#include <string_view>
#include <vector>

#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi/text/RealizedFont.h"
#include "vxgui/platform/gdi/text/TextEngine.h"
#include "vxgui/platform/gdi/text/TextSpacing.h"

namespace vxgui::gdi {

/// The font of a context, and what the context adds to widths.
struct TextSetup {
    explicit TextSetup(const DeviceContext& context);
    TextSetup(const DeviceContext& context, const LOGFONTA& record);

    /// A line, or the part of one that follows on `breaksBefore` breaks.
    ShapedTextRef Shaped(std::u16string_view text, int breaksBefore = 0) const;

    TextEngine& engine;
    std::shared_ptr<RealizedFont> font;
    TextSpacing spacing;
    bool rightToLeft = false;
};

/// Where tabs lead.
struct TabStops {
    /// The stop behind `x`, which is counted from where the stops are.
    int64_t After(int64_t x) const;

    const int* positions = nullptr;  ///< ascending; used up before `distance`
    int count = 0;
    int distance = 8;
};

/// A piece of a line, between tabs.
struct LinePart {
    ShapedTextRef shaped;
    int64_t x = 0;     ///< of its left edge, from the line's
    size_t first = 0;  ///< its first unit in the line
};

/// A line as it is painted.
struct TextLine {
    std::vector<LinePart> parts;
    int64_t width = 0;

    /// The left edge of a unit's character, from the line's; `advance` gets its width.
    int64_t LeftOf(size_t unit, int32_t* advance) const;
};

/// The line of a text without tabs, or with tabs as glyphs.
TextLine MakeLine(const TextSetup& setup, std::u16string_view text);
/// The line of a text with its tabs expanded. Stops are counted from `origin`, which is a place
/// relative to the line's left.
TextLine MakeTabbedLine(const TextSetup& setup, std::u16string_view text, const TabStops& stops,
                        int64_t origin);

}  // namespace vxgui::gdi
