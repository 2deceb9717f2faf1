#include "tests/support/MemoryUse.h"

#include <malloc.h>
#include <unistd.h>

#include <fstream>

namespace vxgui::test {

size_t HeapInUse() {
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

size_t ResidentMemory() {
    size_t whole = 0, resident = 0;
    std::ifstream("/proc/self/statm") >> whole >> resident;
    return resident * static_cast<size_t>(sysconf(_SC_PAGESIZE));
}

}  // namespace vxgui::test
