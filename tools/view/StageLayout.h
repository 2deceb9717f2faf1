#pragma once

#include "vxgui/platform/gdi_types.h"

namespace vxgui::view {

/// The sides of an item that a hand may drag.
struct Grip {
    bool right = false;
    bool bottom = false;

    bool IsNone() const { return !right && !bottom; }
    friend bool operator==(const Grip&, const Grip&) = default;
};

/// Where an item stands on the stage. The stage is a ground of picture pixels, each a square of
/// `factor` screen pixels, that begin at the stage's left and top edges; the item covers some of
/// them. Screen positions are in device pixels from the stage's left top corner.
class StageLayout {
public:
    /// Picture pixels that stay free around an item.
    static constexpr int32_t kRim = 8;
    static constexpr int32_t kSmallestSide = 1;
    static constexpr int32_t kLargestSide = 2048;

    /// The item stands in the middle, as far as it fits.
    void Arrange(gdi::SIZE screen, gdi::SIZE item, int32_t factor);
    /// The same with the left top corner of the item where it is.
    void Resize(gdi::SIZE item) { item_ = item; }

    int32_t Factor() const { return factor_; }
    gdi::SIZE ItemSize() const { return item_; }
    /// The left top corner, in picture pixels.
    gdi::POINT ItemAt() const { return at_; }
    /// Picture pixels that cover the screen, those cut by its far edges included.
    gdi::SIZE GroundSize() const;
    /// Screen pixels that an item with its rim needs.
    static gdi::SIZE Needed(gdi::SIZE item, int32_t factor);

    /// The item on the screen.
    gdi::RECT ItemOnScreen() const;
    /// The picture pixel under a screen position, from the item's left top corner.
    gdi::POINT PixelAt(gdi::POINT screen) const;
    bool IsOnItem(gdi::POINT screen) const;
    /// The sides within reach of a screen position.
    Grip GripAt(gdi::POINT screen) const;
    /// The size that an item takes when the hand that took `grip` at `from` is at `to`.
    gdi::SIZE Dragged(gdi::SIZE before, Grip grip, gdi::POINT from, gdi::POINT to) const;

private:
    gdi::SIZE screen_{};
    gdi::SIZE item_{};
    gdi::POINT at_{};
    int32_t factor_ = 1;
};

}  // namespace vxgui::view
