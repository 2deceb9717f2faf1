#pragma once

#include "tools/vxgui/Sheet.h"
#include "vxgui/theme/skin/Skin.h"

namespace vxgui::tool {

constexpr int32_t kSceneWidth = 1000;
constexpr int32_t kSceneHeight = 600;

/// Paints the parts of a taskbar skin as they stand together on a desktop: the taskbars below and
/// at the side, the start panel, a menu and a group, all at a scale. A part that the skin lacks
/// leaves a gap.
void PaintDesktop(Sheet& sheet, const Skin& skin, double scale = 1);

}  // namespace vxgui::tool
