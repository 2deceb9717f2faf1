#pragma once

#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Graphics.h"

namespace vxgui::gdiplus {

/// Runs `body(graphics)`, which answers a status, unless the graphics is in use elsewhere.
template <class Body>
GpStatus OnGraphics(const void* handle, Body body) noexcept {
    return FlatOn<Graphics>(handle, [&](Graphics& graphics) -> GpStatus {
        const GpStatus ready = graphics.Ready();
        return ready == Ok ? body(graphics) : ready;
    });
}

/// Stores what `get(graphics)` answers in `*result`.
template <class Result, class Get>
GpStatus GetOfGraphics(const void* handle, Result* result, Get get) noexcept {
    if (!result) return InvalidParameter;
    return OnGraphics(handle, [&](Graphics& graphics) {
        *result = get(graphics);
        return Ok;
    });
}

/// Runs `set(graphics)`, which can't fail.
template <class Set>
GpStatus SetOfGraphics(const void* handle, Set set) noexcept {
    return OnGraphics(handle, [&](Graphics& graphics) {
        set(graphics);
        return Ok;
    });
}

/// Runs `draw(graphics, tool)`, which answers a status, with the brush or pen behind `handle`.
template <class Tool, class Draw>
GpStatus DrawWith(const void* graphics, const void* handle, Draw draw) noexcept {
    return OnGraphics(graphics, [&](Graphics& found) -> GpStatus {
        const Ref<Tool> tool = Find<Tool>(handle);
        return tool ? draw(found, *tool) : InvalidParameter;
    });
}

}  // namespace vxgui::gdiplus
