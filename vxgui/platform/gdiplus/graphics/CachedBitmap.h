#pragma once

#include "vxgui/platform/gdiplus/Graphics.h"
#include "vxgui/platform/gdiplus/graphics/ImageLayout.h"

namespace vxgui::gdiplus {

/// What a cached bitmap's handle names: the pixels of a bitmap as they are drawn, as they were when
/// it was made.
class CachedBitmap final : public FlatObject {
public:
    static Ref<CachedBitmap> Make(const Bitmap& bitmap);

    /// With its upper left corner at a point of the world. `WrongState` for a world that does more
    /// than move: the pixels can't be laid out anew.
    GpStatus Draw(Graphics& graphics, INT x, INT y);

private:
    Canvas canvas_;
};

}  // namespace vxgui::gdiplus
