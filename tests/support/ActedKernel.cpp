#include "tests/support/ActedKernel.h"

#include <algorithm>

namespace vxgui {

ActedHelper gHelpers[2];

ActedModule& ActedKernel::Add(const std::string& name, bool loaded) {
    Entry& entry = modules_[name];
    entry = {std::make_unique<ActedModule>(), loaded};
    entry.module->fileName = name;
    return *entry.module;
}

void ActedKernel::Write(const std::string& line) {
    const std::scoped_lock lock(mutex_);
    calls.push_back(line);
}

kernel::HMODULE ActedKernel::Find(const std::string& name, bool loadedOnly) {
    const auto found = modules_.find(name);
    if (found == modules_.end() || (loadedOnly && !found->second.loaded)) return nullptr;
    return found->second.module->Handle();
}

kernel::HMODULE ActedKernel::GetModuleHandleA(const char* name) {
    Write(std::string("handle ") + name);
    return Find(name, true);
}

kernel::HMODULE ActedKernel::LoadLibraryA(const char* name) {
    Write(std::string("load ") + name);
    return Find(name, false);
}

BOOL ActedKernel::FreeLibrary(kernel::HMODULE module) {
    Write("free " + reinterpret_cast<ActedModule*>(module)->fileName);
    return 1;
}

// An apartment may end while it still holds modules of the real kernel.
bool ActedKernel::Made(kernel::HMODULE handle) const {
    return std::any_of(modules_.begin(), modules_.end(), [&](const auto& entry) {
        return entry.second.module && entry.second.module->Handle() == handle;
    });
}

kernel::FARPROC ActedKernel::GetProcAddress(kernel::HMODULE handle, const char* name) {
    if (!Made(handle)) return nullptr;
    const auto& module = *reinterpret_cast<ActedModule*>(handle);
    if (reinterpret_cast<uintptr_t>(name) == 1) return Write("find 1"), module.firstOrdinal;
    Write(std::string("find ") + name);
    const auto found = module.exports.find(name);
    return found == module.exports.end() ? nullptr : found->second;
}

String ActedKernel::GetModuleFileNameA(kernel::HMODULE module) {
    return module ? String(reinterpret_cast<ActedModule*>(module)->fileName) : ownPath;
}

int ActedKernel::MessageBox(const String& text, const String& caption, UINT style) {
    char number[16];
    std::snprintf(number, sizeof number, "%X", style);
    Write("message " + text.Utf8() + "|" + caption.Utf8() + "|" + number);
    return kernel::IDOK;
}

void ActedKernel::ExitProcess(UINT code) { Write("exit " + std::to_string(code)); }

namespace {

bool Store(corehlp::Slot slot, intptr_t target) {
    static_cast<std::atomic<intptr_t>*>(slot)->store(target, std::memory_order_release);
    return true;
}

std::mutex gHelperMutex;

template <int kIndex>
intptr_t AddressOfService(intptr_t number) {
    const auto& services = gHelpers[kIndex].services;
    const auto found = services.find(number);
    return found == services.end() ? 0 : reinterpret_cast<intptr_t>(found->second);
}

template <int kIndex>
intptr_t BindDirectly(intptr_t slot, intptr_t target, intptr_t) {
    const std::scoped_lock lock(gHelperMutex);
    ActedHelper& helper = gHelpers[kIndex];
    ++helper.directBinds;
    return helper.bindsStubs && Store(reinterpret_cast<corehlp::Slot>(slot), target);
}

template <int kIndex>
intptr_t Entry(intptr_t command, intptr_t slot, intptr_t target, intptr_t reserved);

template <int kIndex>
intptr_t Bind(intptr_t slot, intptr_t target) {
    const ActedHelper& helper = gHelpers[kIndex];
    bool binds = helper.bindsStubs;
    if (target == 0) {
        binds = helper.bindsEntry;
        target = reinterpret_cast<intptr_t>(&Entry<kIndex>);
    } else if (target == 1) {
        binds = helper.bindsAddress;
        target = reinterpret_cast<intptr_t>(&AddressOfService<kIndex>);
    } else if (target == 2 || target == 5) {
        binds = true;
        target = reinterpret_cast<intptr_t>(&BindDirectly<kIndex>);
    }
    if (!binds || !helper.stores) return binds;
    return Store(reinterpret_cast<corehlp::Slot>(slot), target);
}

template <int kIndex>
intptr_t Entry(intptr_t command, intptr_t slot, intptr_t target, intptr_t reserved) {
    const std::scoped_lock lock(gHelperMutex);
    gHelpers[kIndex].calls.push_back({command, slot, target, reserved});
    if (command == 2) return Bind<kIndex>(slot, target);
    return target == 1 ? AddressOfService<kIndex>(reserved)
                       : static_cast<intptr_t>(gHelpers[kIndex].version);
}

}  // namespace

kernel::FARPROC HelperEntry(int index) { return AsExport(index == 0 ? &Entry<0> : &Entry<1>); }

}  // namespace vxgui
