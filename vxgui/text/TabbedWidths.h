#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "vxgui/platform/gdi_types.h"

namespace vxgui {

/// The widths of lines as `GetTabbedTextExtentWide` answers them, for a breaker that goes through a
/// text once. The call takes time in line with what it measures, and a breaker asks at each word:
/// as a text is as wide as its parts, only what is new is measured.
class TabbedWidths {
public:
    TabbedWidths(gdi::HDC dc, std::u16string_view text);

    /// A line begins here, not before the one that was last begun.
    void Start(size_t start);
    /// The width of the line up to here, which is not before the place last asked for. It is what
    /// 16 bits hold, signed: beyond 32,767 pixels it wraps.
    int32_t To(size_t end);

private:
    /// A place in the text, and how far it is from the text's begin if the whole were one line.
    struct Place {
        size_t at;
        int64_t x;
    };

    void Extend(size_t end);
    void Append(size_t length);
    /// The first tab that a line meets from a place on; the number of places when there is none.
    size_t TabFrom(size_t place);
    int64_t Extent(size_t from, size_t to) const;
    int64_t StopAfter(int64_t x) const;

    gdi::HDC dc_;
    std::u16string_view text_;
    int64_t tabWidth_;
    std::vector<Place> places_{{0, 0}};  ///< ascending; a tab lies between two neighbours
    size_t start_ = 0;
    int64_t head_ = 0;  ///< from the line's begin to the first place behind it
    bool headKnown_ = true;
    size_t first_ = 0;  ///< the first place of the line
    size_t tab_ = 0;    ///< no tab between `first_` and this place
};

}  // namespace vxgui
