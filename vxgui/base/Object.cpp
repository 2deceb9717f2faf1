#include "vxgui/base/Object.h"

namespace vxgui {

Object::~Object() = default;

void Object::Release() const noexcept {
    if (references_.fetch_sub(1, std::memory_order_acq_rel) == 1) delete this;
}

}  // namespace vxgui
