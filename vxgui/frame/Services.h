#pragma once

#include "vxgui/platform/core7.h"
#include "vxgui/platform/core7_dialogs.h"
#include "vxgui/platform/uxtheme.h"

namespace vxgui {

/// Where an apartment gets its services; a test puts others in their place.
struct Services {
    Ref<core7::Trace> (*createTrace)() = &core7::CreateTrace;
    Ref<core7::SystemInformation> (*createSystemInformation)() = &core7::CreateSystemInformation;
    Ref<core7::DefineFile> (*createDefineFile)() = &core7::CreateDefineFile;
    Ref<core7::Dialogs> (*createDialogs)() = &core7::CreateDialogs;
    core7::PathService& (*pathService)() = &core7::ThePathService;
    core7::ResourceService& (*resourceService)() = &core7::TheResourceService;
    decltype(&uxtheme::GetCurrentThemeName) currentThemeName = &uxtheme::GetCurrentThemeName;
};
extern thread_local Services gServices;

}  // namespace vxgui
