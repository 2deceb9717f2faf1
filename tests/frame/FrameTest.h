#pragma once

#include <gmock/gmock.h>

#include "tests/support/ActedKernel.h"
#include "vxgui/frame/Apartment.h"
#include "vxgui/frame/DllLife.h"
#include "vxgui/frame/Services.h"

namespace vxgui {

/// Starts each test with every stub unbound, an apartment that is not set up, and an acted-out
/// kernel without modules.
class FrameTest : public ::testing::Test {
protected:
    FrameTest() {
        Clear();
        kernel::SetKernel(&kernel_);
        kernel::SetLastError(0);
    }
    ~FrameTest() override {
        Clear();
        kernel::SetKernel(nullptr);
    }

    /// A module that passes for a fit helper.
    ActedModule& AddHelper(const std::string& name = "VxCoreHlp.dll", int index = 0,
                           bool loaded = false) {
        ActedModule& module = kernel_.Add(name, loaded);
        module.firstOrdinal = HelperEntry(index);
        return module;
    }

    ActedKernel kernel_;

private:
    static void Clear() {
        UnbindAllStubs();
        gDllLife = nullptr;
        gTrace = nullptr;
        gSysInfo = nullptr;
        gUseSystemAlphaBlend = false;
        gDrawDib = nullptr;
        gGdipToken = 0;
        gGdiplusModule = gCoreHlpModule = gMsImg32Module = gMsvfw32Module = nullptr;
        gServices = {};
        for (ActedHelper& helper : gHelpers) helper = {};
    }
};

}  // namespace vxgui
