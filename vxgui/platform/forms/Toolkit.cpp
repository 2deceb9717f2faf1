#include <dlfcn.h>

#include <atomic>
#include <mutex>

#include "vxgui/platform/core7.h"
#include "vxgui/platform/forms.h"

namespace vxgui::forms {
namespace {

constexpr char kFileName[] = "libvxgui-qt6.so";
constexpr char kInstalledName[] = "libvxgui-qt6.so.9";
constexpr char kExport[] = "VxGuiToolkit";

enum class Known { Nothing, Settled };

struct State {
    std::mutex mutex;
    Known known = Known::Nothing;
    std::atomic<Toolkit*> toolkit{nullptr};
};

State& TheState() {
    static State* const state = new State;  // dialogs may open while the process ends
    return *state;
}

void Log(const std::string& text) {
    constexpr int32_t kFailure = 4;
    core7::CreateTrace()->Write("forms: " + text, kFailure);
}

void* FunctionBeside() {
    kernel::Kernel& kernel = kernel::TheKernel();
    const kernel::HMODULE module = kernel.LoadLibraryA(kFileName);
    return module ? reinterpret_cast<void*>(kernel.GetProcAddress(module, kExport)) : nullptr;
}

void* FunctionInstalled() {
    void* const library = dlopen(kInstalledName, RTLD_NOW | RTLD_LOCAL);
    return library ? dlsym(library, kExport) : nullptr;
}

Toolkit* Open() {
    void* function = FunctionBeside();
    if (!function) function = FunctionInstalled();
    if (!function) {
        Log(std::string(kFileName) + " isn't there, so that no dialog can be shown");
        return nullptr;
    }
    return reinterpret_cast<VxGuiToolkitFunction*>(function)();
}

Toolkit* Settled() {
    State& state = TheState();
    const std::lock_guard lock(state.mutex);
    if (state.known == Known::Nothing) {
        state.toolkit = Open();
        state.known = Known::Settled;
    }
    return state.toolkit;
}

}  // namespace

Toolkit* UsableToolkit() {
    Toolkit* const toolkit = Settled();
    std::string reason;
    if (!toolkit || toolkit->IsUsable(&reason)) return toolkit;
    Log(reason);
    return nullptr;
}

void SetToolkit(Toolkit* toolkit) {
    State& state = TheState();
    const std::lock_guard lock(state.mutex);
    state.toolkit = toolkit;
    state.known = Known::Settled;
}

void ForgetToolkit() {
    State& state = TheState();
    const std::lock_guard lock(state.mutex);
    state.toolkit = nullptr;
    state.known = Known::Nothing;
}

void PumpEvents() {
    Toolkit* const toolkit = TheState().toolkit;
    std::string reason;
    if (toolkit && toolkit->IsUsable(&reason)) toolkit->PumpEvents();
}

}  // namespace vxgui::forms
