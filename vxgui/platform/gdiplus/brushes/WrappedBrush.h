#pragma once

#include "vxgui/platform/gdiplus/Brush.h"

namespace vxgui::gdiplus {

constexpr bool IsWrap(WrapMode wrap) { return wrap >= WrapModeTile && wrap <= WrapModeClamp; }

/// A brush with a place of its own in the world and something beyond it.
class WrappedBrush : public Brush {
public:
    /// Whether a mode is one of the kind's.
    static constexpr bool Takes(WrapMode wrap) { return IsWrap(wrap); }

    WrapMode Wrap() const { return wrap_; }
    virtual void Wrap(WrapMode wrap) { wrap_ = wrap; }

    Affine transform;  ///< from the brush's own coordinates to the world

protected:
    explicit WrappedBrush(WrapMode wrap) : wrap_(wrap) {}
    WrappedBrush(const WrappedBrush& other)
        : Brush(), transform(other.transform), wrap_(other.wrap_) {}

private:
    WrapMode wrap_;
};

/// Every other copy is the mirror image of the one beside it, or of the one above it.
constexpr bool FlipsX(WrapMode wrap) {
    return wrap == WrapModeTileFlipX || wrap == WrapModeTileFlipXY;
}
constexpr bool FlipsY(WrapMode wrap) {
    return wrap == WrapModeTileFlipY || wrap == WrapModeTileFlipXY;
}

}  // namespace vxgui::gdiplus
