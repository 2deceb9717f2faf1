#pragma once

#include "vxgui/platform/gdi/MosaicView.h"

namespace vxgui::gdi {

/// The rows of a part, laid out a few at a time: what reads a row right behind its being written has
/// to wait. Where it has one band, and few enough source rows, all that were laid out are kept: what
/// is tiled or stretched downwards shows them again and again.
class LaidRows {
public:
    explicit LaidRows(const MosaicView& mosaic);

    /// How many words of memory it needs.
    size_t Words() const;
    void Use(uint32_t* words);

    size_t AtOnce() const { return atOnce_; }
    /// Lays the rows from `top` to before `end` out, at most `AtOnce` of them.
    void Ready(size_t top, size_t end);
    /// The words of one of them.
    const uint32_t* At(size_t y) const { return shown_[y - top_]; }

private:
    static constexpr size_t kMostRows = 256, kMostWords = 64 << 10;
    /// What stays in the nearest cache until it is merged.
    static constexpr size_t kNearWords = 4 << 10, kMostAtOnce = 16;

    void ReadyKept(size_t top, size_t end);
    void ReadyFresh(size_t top, size_t end);

    const MosaicView& mosaic_;
    const size_t pitch_;
    const size_t atOnce_;
    uint32_t* words_ = nullptr;
    /// How many source rows have a place of their own, and the first of them.
    size_t kept_ = 0;
    int32_t first_ = 0;
    std::array<bool, kMostRows> laid_;  // of those that are kept
    size_t top_ = 0;
    std::array<const uint32_t*, kMostAtOnce> shown_;
};

}  // namespace vxgui::gdi
