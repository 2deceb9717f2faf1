#pragma once

#include <cstddef>

#include "vxgui/base/Export.h"
#include "vxgui/platform/types.h"

/// Whether a block of memory is there, for the operations that get an address and a size from a
/// host. A size of 0 is always there; null and what runs past the end of the address space never.
namespace vxgui::kernel {

/// True when any byte of the block can't be read.
VXPLATFORM_API BOOL IsBadReadPtr(const void* block, size_t size);
/// True when any byte of the block can't be written. Nothing is written.
VXPLATFORM_API BOOL IsBadWritePtr(void* block, size_t size);

}  // namespace vxgui::kernel
