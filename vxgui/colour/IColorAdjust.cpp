#include "vxgui/colour/IColorAdjust.h"

namespace vxgui {

IColorAdjust::~IColorAdjust() = default;

void IColorAdjust::ShowConfiguration() {}

}  // namespace vxgui
