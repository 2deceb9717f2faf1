#include "vxgui/theme/Palette.h"

#include <algorithm>

#include "vxgui/base/Error.h"

namespace vxgui {

int32_t Palette::Colour(int32_t index) const {
    if (colours_.empty()) throw Error(ErrorNumber::Subscript, "Palette", "Subscript out of range");
    const bool inside = index >= 0 && static_cast<size_t>(index) < colours_.size();
    return inside ? colours_[static_cast<size_t>(index)] : -1;
}

int32_t Palette::Add(int32_t colour) {
    const auto found = std::find(colours_.begin(), colours_.end(), colour);
    const auto index = static_cast<int32_t>(found - colours_.begin());
    if (found == colours_.end()) colours_.push_back(colour);
    return index;
}

void Palette::Set(int32_t index, int32_t colour) {
    const auto at = static_cast<size_t>(index);
    if (at >= colours_.size()) colours_.resize(at + 1);
    colours_[at] = colour;
}

}  // namespace vxgui
