#pragma once

#include <array>
#include <span>

#include "vxgui/platform/gdi_mosaic.h"
#include "vxgui/theme/NineSlice.h"

namespace vxgui {

/// Which bands of a frame repeat their middle instead of stretching it.
struct FrameTiling {
    /// The edges, along their length.
    bool left = false, top = false, right = false, bottom = false;
    /// The centre.
    bool across = false, down = false;
};

/// A sliced frame as tables of the source pixels that its target shows. Its nine pieces, and
/// however many tiles they have, share borders, so that they can be painted as one.
class VXGUI_LOCAL FrameMosaic {
public:
    /// What a mosaic has at most along an axis; its tables take no memory but the stack's.
    static constexpr int32_t kMost = 2048;

    /// Whether two axes can be laid out: bands that don't overlap and aren't too large, of pixels
    /// that the source has, whose size is given.
    static bool Fits(const SlicedAxis& x, const SlicedAxis& y, int32_t width, int32_t height);

    /// For axes that fit.
    FrameMosaic(const SlicedAxis& x, const SlicedAxis& y, const FrameTiling& tiling);

    /// Calls `paint(y, bands)` for each run of rows that are laid out alike, at most three: `y` is
    /// the target's. Ends when it answers false for the first of them, and answers the same.
    template <class PaintRun>
    bool Paint(PaintRun paint) const {
        size_t count = 0;
        const std::array<Rows, 3> runs = RowRuns(&count);
        for (size_t i = 0; i < count; ++i) {
            std::array<gdi::MosaicBand, 3> bands;
            const int32_t top = y_.near.target.start + runs[i].start;
            if (!paint(top, BandsOf(runs[i], &bands)) && i == 0) return false;
        }
        return true;
    }

private:
    /// A run of rows with one layout of columns.
    struct Rows {
        int32_t start, size;
        bool tiled;
    };
    /// The tables of one axis, with its middle stretched and with it tiled.
    class Tables {
    public:
        Tables(const SlicedAxis& axis, bool stretched, bool tiled);
        std::span<const int32_t> Of(bool tiled, int32_t start, int32_t size) const {
            return std::span(entries_[tiled])
                .subspan(static_cast<size_t>(start), static_cast<size_t>(size));
        }

    private:
        void Fill(const SlicedAxis& axis, bool tiled);

        std::array<int32_t, kMost> entries_[2];
    };
    std::array<Rows, 3> RowRuns(size_t* count) const;
    std::span<const gdi::MosaicBand> BandsOf(const Rows& run,
                                             std::array<gdi::MosaicBand, 3>* bands) const;

    const SlicedAxis& x_;
    const SlicedAxis& y_;
    const FrameTiling tiling_;
    const Tables columns_;
    const Tables rows_;
};

}  // namespace vxgui
