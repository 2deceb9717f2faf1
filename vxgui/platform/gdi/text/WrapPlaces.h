#pragma once

#include <string_view>
#include <vector>

namespace vxgui::gdi {

/// Where a paragraph may be wrapped other than at a space: between the characters of scripts that
/// are written without spaces, as their own rules allow.
class WrapPlaces {
public:
    /// Without `fullWidth` there are no such places.
    WrapPlaces(std::u16string_view paragraph, bool fullWidth);

    /// True when a line may begin with the unit at `index`.
    bool Before(size_t index) const { return index < before_.size() && before_[index]; }

private:
    std::vector<bool> before_;  // empty when there are none at all
};

}  // namespace vxgui::gdi
