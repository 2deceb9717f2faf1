#pragma once

#include <cstdint>

namespace vxgui::gdi {

/// One direction of a blit: which source coordinate a destination coordinate shows, and which
/// destination coordinates are to be written, [Low, High). A negative extent runs from its start
/// downwards, the start included.
class BlitAxis {
public:
    /// Extents that differ must lie in the 32-bit range.
    BlitAxis(int64_t start, int64_t extent, int64_t sourceStart, int64_t sourceExtent);

    bool Empty() const { return low_ >= high_; }
    int32_t Low() const { return static_cast<int32_t>(low_); }
    int32_t High() const { return static_cast<int32_t>(high_); }

    /// Neither scaled nor mirrored: neighbours show neighbours.
    bool Plain() const { return extent_ == sourceExtent_ && step_ == sourceStep_; }

    /// The source coordinate that `at` shows. With i destination pixels from the start, w of
    /// them in all and sw in the source, it is ((2i+1)*sw-1)/(2w) pixels from the source's start:
    /// the nearest one, the lower of two.
    int64_t Source(int64_t at) const;

    /// `Source` of all from `Low` on, as many as there are to `High`.
    void Tabulate(int32_t* sources) const;

    /// Cuts what is written to [low, high).
    void Cut(int64_t low, int64_t high);
    /// Cuts it to what shows a source coordinate from 0 to `size` - 1, at the same scale.
    void CutToSource(int64_t size);
    /// The least source coordinate shown, and one past the greatest. Not for an empty axis.
    int64_t SourceLow() const;
    int64_t SourceHigh() const;
    /// The source's origin moves by `by`.
    void MoveSource(int64_t by) { sourceStart_ += by; }

private:
    template <class Before>
    int64_t FirstNot(Before before) const;

    int64_t start_;
    int64_t extent_;
    int64_t step_;
    int64_t sourceStart_;
    int64_t sourceExtent_;
    int64_t sourceStep_;
    int64_t low_;
    int64_t high_;
};

}  // namespace vxgui::gdi
