#pragma once

#include <cstdint>
#include <vector>

#include "vxgui/vxgui.h"

namespace vxgui::test {

/// A picture of shapes and text by the object layer, on objects that belong to the calling thread.
class MixedDrawing {
public:
    MixedDrawing();

    /// Draws the picture of a number, and answers its pixels.
    std::vector<uint32_t> Draw(int number);

private:
    void FillShapes(int number);
    void StrokeShapes(int number);
    void Write(int number);
    std::vector<uint32_t> Pixels() const;

    static constexpr int32_t kWidth = 160, kHeight = 120;
    const Ref<GpBitmap> bitmap_ = New<GpBitmap>();
    const Ref<GpGraphics> graphics_ = New<GpGraphics>();
};

}  // namespace vxgui::test
