#pragma once

#include <vector>

#include "vxgui/base/Export.h"
#include "vxgui/base/String.h"

namespace vxgui::lint {

/// How many letters must be added, taken away, changed or swapped with their neighbour to come
/// from one name to the other, whatever their case (the optimal string alignment distance).
VXGUI_LOCAL size_t DistanceOf(const String& a, const String& b);

/// The candidate that a slip of the keyboard may have been meant for; empty when none is near.
VXGUI_LOCAL String NearestName(const String& name, const std::vector<String>& candidates);

}  // namespace vxgui::lint
