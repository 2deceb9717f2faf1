#pragma once

#include <memory>
#include <string>

#include "vxgui/platform/kernel.h"

namespace vxgui::kernel {

/// Published error codes that the module calls leave behind.
constexpr DWORD ERROR_INVALID_HANDLE = 6;
constexpr DWORD ERROR_MOD_NOT_FOUND = 126;
constexpr DWORD ERROR_PROC_NOT_FOUND = 127;
constexpr DWORD ERROR_BAD_EXE_FORMAT = 193;

/// A module, whatever it is made of. Its address is its handle.
class Module {
public:
    virtual ~Module() = default;
    /// Null when there is none.
    virtual FARPROC Find(const char* name) const = 0;
    virtual FARPROC FindOrdinal(uint16_t ordinal) const = 0;
    /// The file that holds it, by its full path.
    virtual std::string Path() const = 0;
    /// The bytes of a module file that is kept for its resources alone, else none.
    virtual ResourceBlock FileBytes() const { return {}; }
};

/// Opens a module file: a shared object, or one that is read for its resources and never run.
/// Null, with the reason in the last error, when it is neither or can't be read.
std::unique_ptr<Module> OpenModuleFile(const std::string& path);

}  // namespace vxgui::kernel
