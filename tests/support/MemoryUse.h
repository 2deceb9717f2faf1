#pragma once

#include <cstddef>

namespace vxgui::test {

/// Bytes that the process has taken from the C allocator and not given back.
size_t HeapInUse();

/// Bytes of the process that lie in the machine's memory.
size_t ResidentMemory();

/// The most bytes of the process that ever lay there.
size_t PeakMemory();

/// That the process has never held more than no damaged file may make it hold. Under a sanitizer,
/// which holds more by itself, nothing.
void ExpectLittleMemory();

}  // namespace vxgui::test
