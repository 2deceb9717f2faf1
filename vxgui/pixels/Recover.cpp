#include "vxgui/pixels/Recover.h"

#include <algorithm>

namespace vxgui {

ARGB Recover(ARGB onBlack, ARGB onWhite) {
    const int hidden = std::max(
        {onBlack.Blue - onWhite.Blue, onBlack.Green - onWhite.Green, onBlack.Red - onWhite.Red});
    const auto alpha = static_cast<uint8_t>(std::clamp(255 + hidden, 0, 255));
    return {std::min(onBlack.Blue, alpha), std::min(onBlack.Green, alpha),
            std::min(onBlack.Red, alpha), alpha};
}

}  // namespace vxgui
