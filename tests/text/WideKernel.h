#pragma once

#include <string>
#include <thread>

#include "tests/support/ActedKernel.h"

namespace vxgui {

/// The real kernel, but for the two modules of the wide calls and the family of the platform.
class WideKernel : public ActedKernel {
public:
    explicit WideKernel(DWORD family) : family_(family) {}
    DWORD GetPlatformId() override { return family_; }
    kernel::HMODULE GetModuleHandleA(const char* name) override {
        return Of(name, ActedKernel::GetModuleHandleA(name));
    }
    kernel::HMODULE LoadLibraryA(const char* name) override {
        return Of(name, ActedKernel::LoadLibraryA(name));
    }
    kernel::FARPROC GetProcAddress(kernel::HMODULE module, const char* name) override {
        return module == helper_ ? kernel::RealKernel().GetProcAddress(module, name)
                                 : ActedKernel::GetProcAddress(module, name);
    }

private:
    kernel::HMODULE Of(const std::string& name, kernel::HMODULE acted) {
        return name == "VxCoreHlp.dll" ? helper_ : acted;
    }
    DWORD family_;
    // The thread may know its helper from before this kernel.
    kernel::HMODULE helper_ = kernel::RealKernel().LoadLibraryA("VxCoreHlp.dll");
};

/// Each test has a thread of its own, as the platform's family is read once a thread.
template <class Body>
void OnFreshThread(WideKernel& acted, Body body) {
    kernel::SetKernel(&acted);
    UnbindAllStubs();
    std::thread(body).join();
    UnbindAllStubs();
    kernel::SetKernel(nullptr);
}

}  // namespace vxgui
