#pragma once

#include <pixman.h>

#include <span>

namespace vxgui::gdi {

/// The rectangles that a combination of two regions has at most: where bands overlap, as many as
/// both have there. A hundred thousand columns and as many rows have ten thousand million.
size_t MostBoxesOf(std::span<const pixman_box32_t> a, std::span<const pixman_box32_t> b);

/// Whether that is within the apartment's limit.
bool MayBeCombined(std::span<const pixman_box32_t> a, std::span<const pixman_box32_t> b);

}  // namespace vxgui::gdi
