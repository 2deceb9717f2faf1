#pragma once

#include <string>

#include "vxgui/base/Export.h"
#include "vxgui/base/String.h"
#include "vxgui/base/Variant.h"
#include "vxgui/platform/types.h"

/// Loading modules by name, finding their exports, the message box, the process's exit, the last
/// error and the ANSI code page.
namespace vxgui::kernel {

struct HMODULE__;
using HMODULE = HMODULE__*;
using FARPROC = void (*)();

/// Message box styles.
constexpr UINT MB_OK = 0x0;
constexpr UINT MB_ICONERROR = 0x10;
constexpr UINT MB_SETFOREGROUND = 0x10000;
constexpr int IDOK = 1;

/// Everything that the library asks of the kernel. Each call has its published meaning; a test
/// puts an object of its own in the place of the real one. Module names are UTF-8, and both
/// separators are understood in them.
class VXPLATFORM_API Kernel {
public:
    virtual ~Kernel();

    /// A built-in module, or a file that is loaded already; the name is compared without regard
    /// to case and its ending ".dll" may be left out. A name with a folder means that very file.
    /// Null when there is none.
    virtual HMODULE GetModuleHandleA(const char* name) = 0;
    /// Built-in modules first, then files: shared objects, and portable executables, which are
    /// kept for their resources and never run. A bare name is looked for beside this library and
    /// beside the program, and nowhere else. Null when there is none, with the reason in
    /// `GetLastError`.
    virtual HMODULE LoadLibraryA(const char* name) = 0;
    /// Undoes one `LoadLibraryA`; a built-in module stays. False for what is no module.
    virtual BOOL FreeLibrary(HMODULE module) = 0;
    /// An export by name, or by ordinal where `name` is below 0x10000. Null when there is none;
    /// what a shared object merely uses is none of its exports, and it has no ordinals.
    virtual FARPROC GetProcAddress(HMODULE module, const char* name) = 0;
    /// The full path of the file that holds a module; null stands for the library itself.
    virtual String GetModuleFileNameA(HMODULE module) = 0;
    /// Shows the text where a user will read it; answers the button, `IDOK`.
    virtual int MessageBox(const String& text, const String& caption, UINT style) = 0;
    /// Ends the process at once. An exit status has eight bits: a code that doesn't fit ends as
    /// 255.
    virtual void ExitProcess(UINT code) = 0;
    /// The family of the platform: 1 is the one without wide functions, 2 the one with them.
    virtual DWORD GetPlatformId() { return 2; }
    /// The full path of the running program.
    virtual String GetProgramFileName();
};

/// The kernel in force.
VXPLATFORM_API Kernel& TheKernel();
/// Puts `kernel` in force and answers the one before; null brings back the real one. The object
/// must outlive its use.
VXPLATFORM_API Kernel* SetKernel(Kernel* kernel);
/// The real kernel, for tests that change one answer and pass on the rest.
VXPLATFORM_API Kernel& RealKernel();

/// Shows a message box for the real kernel and answers the button. Without one the form toolkit
/// does, where there is one; else the text goes to the standard error stream.
using MessageBoxFunction = int (*)(const String& text, const String& caption, UINT style);
/// A form toolkit that can show boxes sets its function here; null takes it away.
VXPLATFORM_API void SetMessageBoxFunction(MessageBoxFunction show);

/// One export of a built-in module: by name, and by ordinal where it is not 0.
struct Export {
    const char* name;
    uint16_t ordinal;
    FARPROC address;
};

/// Enters a module in the table of built-in modules. `exports` ends with a null address and
/// must live as long as the process. The same name again replaces the table.
VXPLATFORM_API void RegisterBuiltInModule(const char* name, const Export* exports);

/// The bytes of a resource of a module file, by type and name without regard to case; empty
/// when there is none. A number is written as "#" and its digits. The block belongs to the module.
struct ResourceBlock {
    const uint8_t* data = nullptr;
    size_t size = 0;
};
VXPLATFORM_API ResourceBlock FindModuleResource(HMODULE module, const String& type,
                                                const String& name);

struct ModuleResource {
    String type;
    String name;
    ResourceBlock block;
};
/// The resources of a module file, in the order of its directories and once for all languages.
VXPLATFORM_API std::vector<ModuleResource> ModuleResources(HMODULE module);
/// The same for the bytes of a file that isn't loaded; the blocks lie in them.
VXPLATFORM_API std::vector<ModuleResource> ResourcesOfFile(ResourceBlock file);
/// The file of a module that holds resources and no code, for 32-bit processes or for 64-bit
/// ones. Types and names are stored in capitals, as loaders look for them. Raises error 5 for
/// what is no name and for more than 1 GiB, error 457 for a name that stands twice.
VXPLATFORM_API ByteArray WriteResourceModule(const std::vector<ModuleResource>& resources,
                                             bool wide = false);

/// The last error of the calling thread.
VXPLATFORM_API DWORD GetLastError();
VXPLATFORM_API void SetLastError(DWORD code);

/// The ANSI code page of the calling apartment, an iconv name; "CP1252" at first. False, and
/// nothing changes, for an unknown one.
VXPLATFORM_API bool SetAnsiCodePage(const std::string& name);
VXPLATFORM_API const std::string& AnsiCodePage();
/// Conversions to and from it. A character that it can't express becomes "?", a byte that it
/// doesn't know U+FFFD.
VXPLATFORM_API std::string AnsiFromText(const String& text);
VXPLATFORM_API String TextFromAnsi(std::string_view bytes);
/// The same for any code page that iconv knows. False for an unknown one.
VXPLATFORM_API bool TextFromCodePage(std::string_view bytes, const std::string& page, String* text);

}  // namespace vxgui::kernel
