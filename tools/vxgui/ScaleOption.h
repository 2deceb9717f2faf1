#pragma once

namespace CLI {
class App;
}

namespace vxgui::tool {

/// Adds `--scale`, which sets `scale` to a factor that items can be painted at.
void AddScaleOption(CLI::App& command, double& scale);

}  // namespace vxgui::tool
