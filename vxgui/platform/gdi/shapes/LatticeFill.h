#pragma once

#include <optional>

#include "vxgui/platform/gdi/PixelRegion.h"
#include "vxgui/platform/gdi/shapes/Path.h"

namespace vxgui::gdi {

/// The lattice points of `bounds` inside `path`. A point on a left or top edge is inside, one on
/// a right or bottom edge outside; every figure counts as closed. `fillMode` is ALTERNATE or
/// WINDING. The work is one step for each row that an edge crosses; beyond `kMostCrossings` the
/// answer is none, which bounds time and memory for absurd coordinates.
std::optional<PixelRegion> LatticePoints(const Path& path, int fillMode, const RECT& bounds);

/// Enough for 10,000 rows of 400 edges each.
constexpr double kMostCrossings = 4'000'000;

/// Every coordinate that a region can hold.
constexpr RECT kEverywhere = {INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX};

}  // namespace vxgui::gdi
