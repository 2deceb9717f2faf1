#pragma once

#include <optional>

#include "vxgui/platform/gdi/PixelRegion.h"
#include "vxgui/platform/gdi/shapes/Path.h"

namespace vxgui::gdi {

/// The lattice points of `bounds` inside `path`. A point on a left or top edge is inside, one on
/// a right or bottom edge outside; every figure counts as closed. `fillMode` is ALTERNATE or
/// WINDING. The work is one step for each row that an edge crosses; beyond the
/// apartment's limit the answer is none, which bounds time and memory for absurd coordinates.
std::optional<PixelRegion> LatticePoints(const Path& path, int fillMode, const RECT& bounds);

/// Every coordinate that a region can hold.
constexpr RECT kEverywhere = {INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX};

}  // namespace vxgui::gdi
