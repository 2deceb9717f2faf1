#include "vxgui/platform/known_memory.h"

#include <functional>

namespace vxgui::kernel {
namespace {

thread_local constinit const KnownMemory* last = nullptr;

}  // namespace

KnownMemory::KnownMemory(const void* block, size_t size)
    : first_(static_cast<const char*>(block)), end_(first_ + size), next_(last) {
    last = this;
}

KnownMemory::~KnownMemory() { last = next_; }

bool KnownMemory::Holds(const void* block, size_t size) {
    const std::less_equal<const char*> before;
    const auto* const first = static_cast<const char*>(block);
    for (const KnownMemory* known = last; known; known = known->next_) {
        if (before(known->first_, first) && before(first, known->end_) &&
            size <= static_cast<size_t>(known->end_ - first)) {
            return true;
        }
    }
    return false;
}

}  // namespace vxgui::kernel
