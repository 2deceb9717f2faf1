#include <atomic>
#include <cstdio>
#include <cstdlib>

#include "vxgui/platform/kernel/Folders.h"
#include "vxgui/platform/forms.h"
#include "vxgui/platform/kernel/ModuleTable.h"

namespace vxgui::kernel {

namespace {

std::atomic<MessageBoxFunction> gMessageBox{nullptr};

/// The text as lines of a terminal, which wants no carriage returns.
int PrintMessage(const String& text, const String& caption) {
    std::string lines;
    for (const char c : (caption + ": " + text).Utf8()) {
        if (c != '\r') lines += c;
    }
    std::fprintf(stderr, "%s\n", lines.c_str());
    return IDOK;
}

class ProcessKernel : public Kernel {
public:
    HMODULE GetModuleHandleA(const char* name) override {
        return HandleOf(ModuleTable::Get().Find(name ? name : ""));
    }

    HMODULE LoadLibraryA(const char* name) override {
        return HandleOf(ModuleTable::Get().Load(name ? name : ""));
    }

    BOOL FreeLibrary(HMODULE module) override { return ModuleTable::Get().Free(module); }

    FARPROC GetProcAddress(HMODULE handle, const char* name) override {
        const std::shared_ptr<Module> module = ModuleTable::Get().At(handle);
        if (!module) return nullptr;
        const auto ordinal = reinterpret_cast<uintptr_t>(name);
        const FARPROC address = ordinal < 0x10000
                                    ? module->FindOrdinal(static_cast<uint16_t>(ordinal))
                                    : module->Find(name);
        if (!address) SetLastError(ERROR_PROC_NOT_FOUND);
        return address;
    }

    String GetModuleFileNameA(HMODULE handle) override {
        if (!handle) return OwnPath();
        const std::shared_ptr<Module> module = ModuleTable::Get().At(handle);
        return module ? module->Path() : std::string();
    }

    int MessageBox(const String& text, const String& caption, UINT style) override {
        const MessageBoxFunction show = gMessageBox;
        if (show) return show(text, caption, style);
        forms::Toolkit* const toolkit = forms::UsableToolkit();
        return toolkit ? toolkit->MessageBox(text.view(), caption.view(), style)
                       : PrintMessage(text, caption);
    }

    void ExitProcess(UINT code) override {
        // At once: the ends of the host's static objects must not meet a half-done call. An exit
        // status has eight bits, and a larger code must not come out as success.
        std::fflush(nullptr);
        std::_Exit(code > 255 ? 255 : static_cast<int>(code));
    }
};

std::atomic<Kernel*> gKernel{nullptr};

}  // namespace

Kernel::~Kernel() = default;

Kernel& RealKernel() {
    static auto* kernel = new ProcessKernel;  // never destroyed: threads may outlive main()
    return *kernel;
}

Kernel& TheKernel() {
    Kernel* kernel = gKernel.load(std::memory_order_acquire);
    return kernel ? *kernel : RealKernel();
}

Kernel* SetKernel(Kernel* kernel) {
    Kernel* before = gKernel.exchange(kernel, std::memory_order_acq_rel);
    return before ? before : &RealKernel();
}

void SetMessageBoxFunction(MessageBoxFunction show) { gMessageBox = show; }

void RegisterBuiltInModule(const char* name, const Export* exports) {
    ModuleTable::Get().Register(name, exports);
}

}  // namespace vxgui::kernel
