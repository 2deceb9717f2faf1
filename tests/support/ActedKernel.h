#pragma once

#include <map>
#include <memory>
#include <mutex>
#include <vector>

#include "vxgui/frame/Stub.h"
#include "vxgui/platform/kernel.h"

namespace vxgui {

/// A module of an acted-out kernel.
struct ActedModule {
    std::string fileName;
    std::map<std::string, kernel::FARPROC> exports;
    kernel::FARPROC firstOrdinal = nullptr;

    kernel::HMODULE Handle() { return reinterpret_cast<kernel::HMODULE>(this); }
};

/// A kernel whose modules a test makes, and which writes down what it is asked. `ExitProcess`
/// returns. The writing is guarded, so that two threads may bind.
class ActedKernel : public kernel::Kernel {
public:
    /// What `LoadLibraryA` finds under a name, and `GetModuleHandleA` too when it is `loaded`.
    ActedModule& Add(const std::string& name, bool loaded = false);
    void Remove(const std::string& name) { modules_.erase(name); }

    kernel::HMODULE GetModuleHandleA(const char* name) override;
    kernel::HMODULE LoadLibraryA(const char* name) override;
    BOOL FreeLibrary(kernel::HMODULE module) override;
    kernel::FARPROC GetProcAddress(kernel::HMODULE module, const char* name) override;
    String GetModuleFileNameA(kernel::HMODULE module) override;
    int MessageBox(const String& text, const String& caption, UINT style) override;
    void ExitProcess(UINT code) override;

    String ownPath = "/opt/host/libvxgui.so";
    /// A line for each call but `GetModuleFileNameA`.
    std::vector<std::string> calls;

private:
    struct Entry {
        std::unique_ptr<ActedModule> module;
        bool loaded;
    };

    void Write(const std::string& line);
    bool Made(kernel::HMODULE handle) const;
    kernel::HMODULE Find(const std::string& name, bool loadedOnly);

    std::map<std::string, Entry> modules_;
    std::mutex mutex_;
};

template <class Function>
kernel::FARPROC AsExport(Function* function) {
    return reinterpret_cast<kernel::FARPROC>(function);
}

/// What an acted-out helper library does; the calls of its entry are written down.
struct ActedHelper {
    uint32_t version = 0x07000000 + 670;
    bool bindsEntry = true;    ///< (2, slot, 0, 0) succeeds
    bool bindsAddress = true;  ///< (2, slot, 1, 0) succeeds
    bool bindsStubs = true;    ///< binding a slot to an address succeeds
    bool stores = true;        ///< false: it claims success and binds nothing
    std::map<intptr_t, kernel::FARPROC> services;
    std::vector<std::vector<intptr_t>> calls;
    int directBinds = 0;  ///< calls that came to BindStub or BindStubFast themselves
};

/// Two helpers, so that an unfit one can stand before a fit one.
extern ActedHelper gHelpers[2];
kernel::FARPROC HelperEntry(int index);

}  // namespace vxgui
