#pragma once

#include "vxgui/gdip/GpObject.h"

namespace vxgui {

class GpBitmap;
class GpGraphics;

/// A bitmap made ready for one kind of target.
class VXGUI_API GpCachedBitmap : public GpOwner<GpCachedBitmap, gdiplus::GpCachedBitmap> {
public:
    static constexpr auto kDelete = flat::GdipDeleteCachedBitmap;

    gdiplus::GpCachedBitmap* Handle() const { return handle_; }

    /// Both objects are needed: raises without one.
    bool Create(const Ref<GpBitmap>& BITMAP, const Ref<GpGraphics>& graphics);
    bool DrawCachedBitmap(const Ref<GpGraphics>& g, int32_t X, int32_t Y);
};

}  // namespace vxgui
