#include "vxgui/platform/kernel/ModuleTable.h"

#include "vxgui/platform/kernel/BuiltInModules.h"
#include "vxgui/platform/kernel/ModuleName.h"

namespace vxgui::kernel {

ModuleTable& ModuleTable::Get() {
    static auto* table = new ModuleTable;  // never destroyed: threads may outlive main()
    return *table;
}

ModuleTable::ModuleTable() {
    for (const BuiltInEntry& entry : BuiltInModules()) Register(entry.name, entry.exports);
}

void ModuleTable::Register(const std::string& name, const Export* exports) {
    const std::scoped_lock lock(mutex_);
    auto& module = builtIn_[ModuleName(name).Plain()];
    if (module) {
        module->Exports(exports);
    } else {
        module = std::make_shared<BuiltInModule>(exports);
    }
}

std::shared_ptr<Module> ModuleTable::Find(const std::string& name) {
    std::shared_ptr<Module> module = FindBuiltIn(name);
    if (!module) module = FindFile(name);
    if (!module) SetLastError(ERROR_MOD_NOT_FOUND);
    return module;
}

std::shared_ptr<Module> ModuleTable::Load(const std::string& name) {
    if (auto module = FindBuiltIn(name)) return module;
    const std::string path = ModuleName(name).FindFile();
    if (!path.empty()) return LoadFile(path);
    SetLastError(ERROR_MOD_NOT_FOUND);
    return nullptr;
}

bool ModuleTable::Free(HMODULE handle) {
    std::shared_ptr<Module> closing;  // ends after the lock does
    const std::shared_ptr<Module> module = At(handle);
    if (!module) return false;
    const std::scoped_lock lock(mutex_);
    const auto file = files_.find(module->Path());
    if (file == files_.end() || file->second.module != module) return true;
    if (--file->second.loads == 0) {
        closing = std::move(file->second.module);
        files_.erase(file);
    }
    return true;
}

std::shared_ptr<Module> ModuleTable::At(HMODULE handle) {
    const std::scoped_lock lock(mutex_);
    for (const auto& [name, module] : builtIn_) {
        if (HandleOf(module) == handle) return module;
    }
    for (const auto& [path, file] : files_) {
        if (HandleOf(file.module) == handle) return file.module;
    }
    SetLastError(ERROR_INVALID_HANDLE);
    return nullptr;
}

std::shared_ptr<Module> ModuleTable::FindBuiltIn(const std::string& name) {
    const ModuleName wanted(name);
    if (wanted.HasFolder()) return nullptr;
    const std::scoped_lock lock(mutex_);
    const auto found = builtIn_.find(wanted.Plain());
    return found == builtIn_.end() ? nullptr : found->second;
}

std::shared_ptr<Module> ModuleTable::FindFile(const std::string& name) {
    const ModuleName wanted(name);
    const std::string path = wanted.HasFolder() ? wanted.FindFile() : std::string();
    const std::scoped_lock lock(mutex_);
    for (const auto& [filePath, file] : files_) {
        const bool same =
            wanted.HasFolder() ? filePath == path : PlainNameOf(filePath) == wanted.Plain();
        if (same) return file.module;
    }
    return nullptr;
}

std::shared_ptr<Module> ModuleTable::LoadFile(const std::string& path) {
    {
        const std::scoped_lock lock(mutex_);
        const auto file = files_.find(path);
        if (file != files_.end()) return ++file->second.loads, file->second.module;
    }
    std::shared_ptr<Module> opened = OpenModuleFile(path);
    if (!opened) return nullptr;
    const std::scoped_lock lock(mutex_);
    LoadedFile& file = files_[path];  // another thread may have been quicker
    if (!file.module) file.module = opened;
    ++file.loads;
    return file.module;
}

}  // namespace vxgui::kernel
