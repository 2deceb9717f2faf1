#pragma once

#include <optional>

#include "vxgui/platform/gdi_types.h"

namespace vxgui::gdi {

/// The system colours of one ring of an edge, by their indexes.
struct EdgeColors {
    int topLeft;
    int bottomRight;
};

/// One of the two rings of `DrawEdge`: none when `edge` asks for none.
std::optional<EdgeColors> OuterColors(UINT edge, UINT flags);
std::optional<EdgeColors> InnerColors(UINT edge, UINT flags);

/// Whether `edge` asks for a ring that is raised and sunken at once, which has no colours unless
/// the edge is flat or monochrome.
bool IsContradictory(UINT edge, UINT flags);

/// The system colour of the area inside an edge.
int MiddleColor(UINT flags);

}  // namespace vxgui::gdi
