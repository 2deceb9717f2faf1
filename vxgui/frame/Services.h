#pragma once

#include "vxgui/platform/core7.h"

namespace vxgui {

/// Where an apartment's frame gets its services; a test puts others in their place.
struct Services {
    Ref<core7::Trace> (*createTrace)() = &core7::CreateTrace;
    Ref<core7::SystemInformation> (*createSystemInformation)() = &core7::CreateSystemInformation;
};
extern thread_local Services gServices;

}  // namespace vxgui
