#include "tests/support/MemoryUse.h"

#include <gtest/gtest.h>
#include <malloc.h>
#include <sys/resource.h>
#include <unistd.h>

#include <fstream>

#include "tests/support/Sanitizers.h"

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

size_t PeakMemory() {
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return static_cast<size_t>(usage.ru_maxrss) * 1024;
}

void ExpectLittleMemory() {
    if (kSanitized) return;
    EXPECT_LT(PeakMemory(), size_t{256} << 20);
}

}  // namespace vxgui::test
