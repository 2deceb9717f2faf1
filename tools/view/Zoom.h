#pragma once

#include <cstdint>

namespace vxgui::view {

/// How many pixels of the screen a pixel of the picture takes each way: whole numbers, so that
/// every pixel stays a square.
class Zoom {
public:
    static constexpr int32_t kLargest = 32;

    int32_t Factor() const { return factor_; }
    /// The largest step that is not above `factor`, at least 1.
    void Factor(int32_t factor);
    /// One step; false at the end of them.
    bool In();
    bool Out();
    /// Lines between pixels would hide smaller ones.
    bool HasRoomForGrid() const { return factor_ >= 6; }

private:
    int32_t factor_ = 1;
};

}  // namespace vxgui::view
