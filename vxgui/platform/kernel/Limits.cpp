#include "vxgui/platform/limits.h"

namespace vxgui {

Limits& ApartmentLimits() {
    thread_local Limits limits;
    return limits;
}

}  // namespace vxgui
