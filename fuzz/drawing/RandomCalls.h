#pragma once

#include <cstdint>

namespace vxgui::fuzz {

/// Makes so many `ExactCalls` that the numbers of one seed choose. The checksum of the pixels that
/// they leave, which is the same in every build.
uint32_t ChecksumAfter(int calls);

}  // namespace vxgui::fuzz
