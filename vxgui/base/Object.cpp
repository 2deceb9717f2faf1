#include "vxgui/base/Object.h"

namespace vxgui {

Object::~Object() = default;

void Object::Release() const noexcept {
    if (references_.fetch_sub(1, std::memory_order_acq_rel) != 1) return;
    // A destructor may call operations of its own object, and each keeps its object alive: the
    // count must not come back to 0 there, which would destroy the object a second time.
    constexpr int32_t kDestroying = 1 << 30;
    references_.store(kDestroying, std::memory_order_relaxed);
    delete this;
}

}  // namespace vxgui
