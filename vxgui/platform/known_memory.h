#pragma once

#include <cstddef>

#include "vxgui/base/Export.h"

namespace vxgui::kernel {

/// A block of memory that this thread knows to be there, to be read and written, for the length of
/// a scope: `IsBadReadPtr` and `IsBadWritePtr` need not ask the system about any part of it. Scopes
/// end in the reverse order of their beginnings.
class VXPLATFORM_API KnownMemory {
public:
    KnownMemory(const void* block, size_t size);
    ~KnownMemory();
    KnownMemory(const KnownMemory&) = delete;
    KnownMemory& operator=(const KnownMemory&) = delete;

    /// Whether one of this thread's blocks holds all of it.
    static bool Holds(const void* block, size_t size);

private:
    const char* const first_;
    const char* const end_;
    const KnownMemory* const next_;
};

}  // namespace vxgui::kernel
