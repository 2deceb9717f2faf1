#pragma once

#include <memory>
#include <string>
#include <vector>

#include "vxgui/gdip/GpEffect.h"

namespace CLI {
class App;
}

namespace vxgui::tool {

/// What was asked for, in the order in which it is applied.
struct WantedEffects {
    struct Wanted {
        const struct EffectOption* option;
        std::string value;
    };
    std::vector<Wanted> wanted;
};

/// Adds an option for each of the eleven effects.
void AddEffectOptions(CLI::App& command, const std::shared_ptr<WantedEffects>& wanted);

/// Makes what was asked for; a `UsageError` names the option whose values aren't those of the
/// effect.
std::vector<Ref<GpEffect>> MakeEffects(const WantedEffects& wanted);

}  // namespace vxgui::tool
