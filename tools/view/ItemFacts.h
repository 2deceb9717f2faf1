#pragma once

#include <string>
#include <vector>

#include "tools/view/ShownItem.h"

namespace vxgui::view {

/// A line of what is known of an item.
struct Fact {
    std::string name;
    std::string value;
};

/// What an item is made of, and what of it the shown state uses.
std::vector<Fact> FactsOf(const ShownItem& shown);

/// The colours that take most of a picture with straight alpha, 0xFFRRGGBB, the most frequent
/// first: near ones count as one, clear pixels as none.
std::vector<uint32_t> MainColours(tool::Sheet& straight, size_t most);

}  // namespace vxgui::view
