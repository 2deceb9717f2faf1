#pragma once

#include <map>
#include <mutex>

#include "vxgui/platform/kernel/BuiltInModule.h"

namespace vxgui::kernel {

/// The modules of the process: the built-in ones, which are always there, and the files that
/// were loaded, each with the number of its loads. Any thread may call it. No lock is held while
/// a file is opened, closed or searched, since the dynamic linker has a lock of its own.
class ModuleTable {
public:
    static ModuleTable& Get();

    void Register(const std::string& name, const Export* exports);
    /// A built-in module, or a file that is loaded, by its name or by its path. Null when there
    /// is none, with the reason in the last error.
    std::shared_ptr<Module> Find(const std::string& name);
    /// The same, or a file that is loaded now; each load of a file counts.
    std::shared_ptr<Module> Load(const std::string& name);
    /// Undoes one load of a file; a built-in module stays. False for what is no module.
    bool Free(HMODULE handle);
    /// The module of a handle, or null, with the reason in the last error.
    std::shared_ptr<Module> At(HMODULE handle);

private:
    struct LoadedFile {
        std::shared_ptr<Module> module;
        int32_t loads = 0;
    };

    ModuleTable();
    std::shared_ptr<Module> FindBuiltIn(const std::string& name);
    std::shared_ptr<Module> FindFile(const std::string& name);
    std::shared_ptr<Module> LoadFile(const std::string& path);

    std::mutex mutex_;
    std::map<std::string, std::shared_ptr<BuiltInModule>> builtIn_;  // by its plain name
    std::map<std::string, LoadedFile> files_;                        // by its full path
};

inline HMODULE HandleOf(const std::shared_ptr<Module>& module) {
    return reinterpret_cast<HMODULE>(module.get());
}

}  // namespace vxgui::kernel
