#pragma once

#include <string>
#include <vector>

#include "vxgui/theme/ThemeItem.h"

namespace vxgui::tool {

struct ItemFact {
    std::string term;
    std::string value;
};

/// What there is to know of an item, for people.
std::vector<ItemFact> FactsOf(ThemeItem& item);

}  // namespace vxgui::tool
