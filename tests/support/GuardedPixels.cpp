#include "tests/support/GuardedPixels.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdlib>
#include <cstring>
#include <string_view>

namespace vxgui::test {
namespace {

constexpr size_t kWord = 4;  // pixels and rows begin at words

size_t RoundUp(size_t size, size_t unit) { return (size + unit - 1) / unit * unit; }

}  // namespace

uint8_t* GuardedPixels::Take(size_t size, bool) {
    const auto page = static_cast<size_t>(::sysconf(_SC_PAGESIZE));
    const size_t usable = RoundUp(size, page);
    void* const start = ::mmap(nullptr, usable + page, PROT_READ | PROT_WRITE,
                               MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (start == MAP_FAILED) return nullptr;
    auto* const first = static_cast<uint8_t*>(start);
    const bool behind = guard_ == Guard::Behind;
    ::mprotect(behind ? first + usable : first, page, PROT_NONE);
    uint8_t* const bits = behind ? first + usable - RoundUp(size, kWord) : first + page;
    const std::lock_guard lock(mutex_);
    mappings_[bits] = {start, usable + page};
    return bits;
}

void GuardedPixels::GiveBack(uint8_t* bits) {
    if (!bits) return;
    const std::lock_guard lock(mutex_);
    const auto found = mappings_.find(bits);
    if (found == mappings_.end()) std::abort();  // never taken, or given back before
    ::munmap(found->second.start, found->second.size);
    mappings_.erase(found);
}

void GuardedPixels::ObeyEnvironment() {
    const char* const wish = std::getenv("VXGUI_TEST_GUARD");
    if (!wish) return;
    static GuardedPixels* const pixels =
        new GuardedPixels(std::string_view(wish) == "front" ? Guard::InFront : Guard::Behind);
    gdi::PixelSource::Replace(*pixels);
}

}  // namespace vxgui::test
