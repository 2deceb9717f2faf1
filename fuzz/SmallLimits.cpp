#include "fuzz/Fuzz.h"
#include "vxgui/platform/codecs.h"
#include "vxgui/platform/core7.h"

namespace vxgui::fuzz {

void SetSmallLimits() {
    codecs::ApartmentDecodeLimits() = {2048, 1 << 18, size_t{1} << 22};
    core7::ApartmentDefineLimits() = {1u << 18, 4096};
    core7::ApartmentDecompressionLimit() = 1u << 20;
}

}  // namespace vxgui::fuzz
