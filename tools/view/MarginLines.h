#pragma once

#include <vector>

#include "vxgui/theme/ThemeItem.h"

namespace vxgui::view {

/// A line along the near edge of a column or row of an item's pixels, from one side to the other.
struct MarginLine {
    enum class Kind {
        Slice,    ///< between two of the nine pieces of the image
        Content,  ///< around the room for the caption
    };
    Kind kind;
    bool vertical;
    int32_t at;  ///< columns from the left or rows from the top; the item's size is its far side

    friend bool operator==(const MarginLine&, const MarginLine&) = default;
};

/// Where an item that is painted at a size is cut. An image without margins has no slices; one that
/// is smaller than its margins has its lines where the pieces are cropped.
std::vector<MarginLine> MarginLinesOf(const ThemeItem& item, gdi::SIZE size);

}  // namespace vxgui::view
