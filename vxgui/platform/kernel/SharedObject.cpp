#include "vxgui/platform/kernel/SharedObject.h"

#include <dlfcn.h>
#include <link.h>

#include <cstring>

namespace vxgui::kernel {

namespace {

class SharedObject : public Module {
public:
    SharedObject(void* handle, std::string path) : handle_(handle), path_(std::move(path)) {}
    ~SharedObject() override { dlclose(handle_); }

    FARPROC Find(const char* name) const override {
        void* address = dlsym(handle_, name);
        return address && Holds(address) ? reinterpret_cast<FARPROC>(address) : nullptr;
    }
    /// The format knows no ordinals.
    FARPROC FindOrdinal(uint16_t) const override { return nullptr; }
    std::string Path() const override { return path_; }

private:
    /// The look-up goes on into the objects that this one needs; what they define is no export
    /// of this one.
    bool Holds(void* address) const {
        Dl_info info{};
        void* map = nullptr;
        if (!dladdr1(address, &info, &map, RTLD_DL_LINKMAP)) return false;
        link_map* own = nullptr;
        return dlinfo(handle_, RTLD_DI_LINKMAP, &own) == 0 && map == own;
    }

    void* handle_;
    std::string path_;
};

}  // namespace

std::unique_ptr<Module> OpenSharedObject(const std::string& path) {
    // Now, so that a missing need shows here rather than in a later call; local, so that its
    // names never come in the place of others.
    void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle) return std::make_unique<SharedObject>(handle, path);
    SetLastError(ERROR_BAD_EXE_FORMAT);
    return nullptr;
}

}  // namespace vxgui::kernel
