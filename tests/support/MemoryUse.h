#pragma once

#include <cstddef>

namespace vxgui::test {

/// Bytes that the process has taken from the C allocator and not given back.
size_t HeapInUse();

/// Bytes of the process that lie in the machine's memory.
size_t ResidentMemory();

}  // namespace vxgui::test
