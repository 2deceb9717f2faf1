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
    FrameMosaic(const FrameMosaic&) = delete;
    FrameMosaic& operator=(const FrameMosaic&) = delete;

    /// The rows that are laid out alike, from the target's first on: at most three parts of at most
    /// three bands.
    std::span<const gdi::MosaicPart> Parts() const { return std::span(parts_).first(count_); }

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
    using Bands = std::array<gdi::MosaicBand, 3>;

    /// Fills in the runs from the top down and answers how many there are.
    static size_t RunsOf(const SlicedAxis& y, const FrameTiling& tiling, std::array<Rows, 3>* runs);
    gdi::MosaicPart PartOf(const Rows& run, const SlicedAxis& x, const FrameTiling& tiling,
                           Bands* bands) const;

    const Tables columns_;
    const Tables rows_;
    std::array<Bands, 3> bands_;
    std::array<gdi::MosaicPart, 3> parts_;
    size_t count_ = 0;
};

}  // namespace vxgui
