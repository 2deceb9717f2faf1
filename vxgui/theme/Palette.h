#pragma once

#include <cstdint>
#include <vector>

namespace vxgui {

/// Colours addressed by small numbers from 0.
class Palette {
public:
    /// -1 outside the bounds. Before the first `Add` there are no bounds, and reading raises the
    /// subscript error.
    int32_t Colour(int32_t index) const;
    /// The number of the colour, which is added if it is new.
    int32_t Add(int32_t colour);
    /// Gives a number that is not negative its colour, whatever others there are; numbers that
    /// had none up to it become 0.
    void Set(int32_t index, int32_t colour);

    const std::vector<int32_t>& All() const { return colours_; }

private:
    std::vector<int32_t> colours_;
};

}  // namespace vxgui
