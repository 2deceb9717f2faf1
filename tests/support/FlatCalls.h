#pragma once

#include <string>
#include <vector>

#include "vxgui/frame/Stub.h"
#include "vxgui/platform/gdiplus_types.h"
#include "vxgui/platform/kernel.h"

namespace vxgui::test {

/// Writes down the calls of the flat functions in a scope. They go on to the platform, but for
/// those that a test answers itself.
class FlatCalls : public kernel::Kernel {
public:
    FlatCalls() {
        Begin();
        kernel::SetKernel(this);
        UnbindAllStubs();
    }
    ~FlatCalls() override {
        UnbindAllStubs();
        kernel::SetKernel(nullptr);
    }

    /// What came since the last time, a line for each call: "GdipSetSmoothingMode(*, 4)". Numbers
    /// and texts are as they are, input records in brackets, any other address is "*", and none
    /// "0".
    std::vector<std::string> Take();
    /// The same, without the calls whose names aren't among these.
    std::vector<std::string> TakeOf(const std::vector<std::string>& names);
    /// A function answers this from now on, and does nothing.
    void Answer(const std::string& name, gdiplus::Status status);
    /// All functions do their work again.
    void AnswerNothing();

    kernel::HMODULE GetModuleHandleA(const char* name) override {
        return kernel::RealKernel().GetModuleHandleA(name);
    }
    kernel::HMODULE LoadLibraryA(const char* name) override {
        return kernel::RealKernel().LoadLibraryA(name);
    }
    BOOL FreeLibrary(kernel::HMODULE module) override {
        return kernel::RealKernel().FreeLibrary(module);
    }
    kernel::FARPROC GetProcAddress(kernel::HMODULE module, const char* name) override;
    String GetModuleFileNameA(kernel::HMODULE module) override {
        return kernel::RealKernel().GetModuleFileNameA(module);
    }
    int MessageBox(const String& text, const String&, UINT style) override {
        message = text;
        messageStyle = style;
        return kernel::IDOK;
    }
    void ExitProcess(UINT code) override { kernel::RealKernel().ExitProcess(code); }

    String message;  ///< of the last message box
    UINT messageStyle = 0;

private:
    static void Begin();
};

}  // namespace vxgui::test
