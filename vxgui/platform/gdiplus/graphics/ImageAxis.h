#pragma once

#include <optional>

#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// One axis of an image that is drawn upright: the part from `source0` to `source1`, in pixels of
/// the image, goes from `target0` to `target1`, in pixels of the device. A target that runs
/// backwards mirrors.
struct ImageAxis {
    double source0, source1;
    double target0, target1;
    INT size;  ///< of the whole image

    /// Source pixels for one of the target; below 0 when it mirrors.
    double Step() const { return (source1 - source0) / (target1 - target0); }
    /// Each pixel of the target shows one whole pixel of the source, in order.
    bool Copies() const;
    bool IsEmpty() const { return !(source1 > source0) || target0 == target1; }
    /// Leaves out what lies beyond the image.
    void CutToImage();
    void PutSourceInOrder();
};

/// What stands at the pixels beside those of a part of an image. A part's own border isn't crossed
/// while there are pixels of the image behind it: they'd bleed into the picture. At the image's
/// border it goes on by its wrap mode, or by its last pixels without one.
class EdgeRule {
public:
    EdgeRule(const ImageAxis& axis, std::optional<WrapMode> wrap, bool vertical);

    /// A pixel of the image, or -1 for what lies outside of it.
    INT Resolve(INT index) const;
    /// The pixels that `Resolve` answers lie in [First, End).
    INT First() const { return wraps_ ? 0 : low_; }
    INT End() const { return wraps_ ? size_ : high_; }
    bool Wraps() const { return wraps_; }

private:
    INT Wrapped(INT index) const;

    const INT size_;
    INT low_, high_;  // the part's pixels
    const bool wraps_;
    bool clamps_ = false, flips_ = false;
};

}  // namespace vxgui::gdiplus
