#pragma once

#include "vxgui/platform/gdiplus/text/Paragraph.h"

namespace vxgui::gdiplus {

/// A line as it is seen: units [first, headEnd) of its paragraph and, where it has been cut, an
/// ellipsis and the units [tail, end).
struct StringLine {
    size_t first = 0;
    size_t headEnd = 0;
    bool dots = false;
    size_t tail = 0;
    size_t end = 0;
};

constexpr std::u16string_view kEllipsis = u"\u2026";

/// Cuts a paragraph into lines of a width.
class LineBreaker {
public:
    LineBreaker(const StringFace& face, const FormatSettings& format, const Paragraph& paragraph,
                double width)
        : face_(face), format_(format), paragraph_(paragraph), width_(width) {}

    /// The line that begins at `first`, and where the next one begins. `last` is for the one
    /// behind which no other can be seen, and `more` tells that there would be more text.
    StringLine Next(size_t first, bool last, bool more, size_t* next) const;

private:
    StringLine Wrapped(size_t first, size_t* next) const;
    StringLine Trimmed(size_t first, bool more) const;
    StringLine WithDots(size_t first) const;
    StringLine PathWithDots(size_t first) const;
    StringLine Shown(size_t first, size_t end) const;

    const StringFace& face_;
    const FormatSettings& format_;
    const Paragraph& paragraph_;
    const double width_;
};

}  // namespace vxgui::gdiplus
