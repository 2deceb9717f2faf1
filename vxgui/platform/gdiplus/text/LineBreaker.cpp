#include "vxgui/platform/gdiplus/text/LineBreaker.h"

#include <algorithm>

namespace vxgui::gdiplus {

StringLine LineBreaker::Next(size_t first, bool last, bool more, size_t* next) const {
    *next = paragraph_.Size();
    const bool wraps = !format_.Has(StringFormatFlagsNoWrap);
    if (!wraps) return Trimmed(first, last && more);
    const StringLine line = Wrapped(first, next);
    if (!last || format_.trimming == StringTrimmingNone) return line;
    if (*next == paragraph_.Size() && !more) return line;
    *next = paragraph_.Size();
    return Trimmed(first, more);
}

// Spaces at the end hang over; a word that is too long alone is cut.
StringLine LineBreaker::Wrapped(size_t first, size_t* next) const {
    const size_t size = paragraph_.Size();
    const size_t fits = paragraph_.LastFitting(first, size, width_);
    size_t past = fits;
    while (past < size && paragraph_.IsSpace(past)) ++past;
    for (*next = past; *next > first && *next < size && !paragraph_.CanWrap(*next);) --*next;
    if (*next <= first && first < size) {
        *next = std::max(fits, first + 1);
        while (*next < size && !paragraph_.CanCut(*next)) ++*next;
    }
    return Shown(first, *next);
}

StringLine LineBreaker::Shown(size_t first, size_t end) const {
    StringLine line;
    line.first = first;
    line.headEnd = format_.Has(StringFormatFlagsMeasureTrailingSpaces)
                       ? end
                       : paragraph_.WithoutSpaces(first, end);
    line.tail = line.end = end;
    return line;
}

StringLine LineBreaker::Trimmed(size_t first, bool more) const {
    const size_t size = paragraph_.Size();
    const size_t end = paragraph_.WithoutSpaces(first, size);
    const bool fits = paragraph_.LastFitting(first, end, width_) == end;
    const size_t cut = paragraph_.LastFitting(first, size, width_);
    switch (format_.trimming) {
        case StringTrimmingCharacter:
            return Shown(first, fits ? size : cut);
        case StringTrimmingWord: {
            const size_t word = paragraph_.WordEnd(first, cut);
            return Shown(first, fits ? size : word > first ? word : cut);
        }
        case StringTrimmingEllipsisCharacter:
        case StringTrimmingEllipsisWord:
            return fits && !more ? Shown(first, size) : WithDots(first);
        case StringTrimmingEllipsisPath:
            return fits ? Shown(first, size) : PathWithDots(first);
        default:
            return Shown(first, size);
    }
}

StringLine LineBreaker::WithDots(size_t first) const {
    const double room = width_ - face_.Shape(kEllipsis).width;
    StringLine line;
    line.first = first;
    line.headEnd = paragraph_.LastFitting(first, paragraph_.Size(), room);
    if (format_.trimming == StringTrimmingEllipsisWord) {
        const size_t word = paragraph_.WordEnd(first, line.headEnd);
        if (word > first) line.headEnd = word;
    }
    line.dots = true;
    line.tail = line.end = paragraph_.Size();
    return line;
}

// What stands behind the last separator is kept; of a text without any, the end of it.
StringLine LineBreaker::PathWithDots(size_t first) const {
    const double room = width_ - face_.Shape(kEllipsis).width;
    const size_t size = paragraph_.Size();
    const size_t separator = paragraph_.Text().find_last_of(u"\\/");
    StringLine line;
    line.first = first;
    line.tail = paragraph_.FirstFitting(first, size, room);
    if (separator != std::u16string_view::npos && separator >= line.tail) {
        line.tail = separator;
    } else if (separator == std::u16string_view::npos || separator < first) {
        line.tail = paragraph_.FirstFitting(first + (size - first) / 2, size, room);
    }
    const double head = room - paragraph_.WidthOf(line.tail, size);
    line.headEnd = paragraph_.LastFitting(first, line.tail, head);
    line.dots = true;
    line.end = size;
    return line;
}

}  // namespace vxgui::gdiplus
