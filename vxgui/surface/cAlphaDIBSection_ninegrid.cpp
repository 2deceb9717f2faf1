#include <algorithm>

#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {

namespace {

/// A stretch of destination along one axis and the source that fills it.
struct Run {
    int32_t dst, dstSize;
    int32_t src, srcSize;
};

/// The three runs of one axis: the near margin, the middle, the far margin.
struct Axis {
    Run near, middle, far;
};

/// Destination margins first: both are limited by the destination, the near one by the source
/// too. Each by itself, so that in a destination too small for both the far one, painted last,
/// lies over the near one. A far source margin that is cut loses its inner part, so that the
/// outer edge of the source stays.
Axis Divide(int32_t dst, int32_t dstSize, int32_t src, int32_t srcSize, int32_t nearMargin,
            int32_t farMargin) {
    const int32_t near = std::clamp(nearMargin, 0, std::max(0, std::min(dstSize, srcSize)));
    const int32_t far = std::clamp(farMargin, 0, std::max(0, dstSize));
    const int32_t farSource = std::min(std::clamp(farMargin, 0, std::max(0, srcSize)), far);
    const int32_t middle = dstSize - near - far;
    const int32_t middleSource = std::min(srcSize - near - farSource, middle);
    return {{dst, near, src, std::max(1, near)},
            {dst + near, middle, src + near, std::max(1, middleSource)},
            {dst + near + middle, far, src + srcSize - farSource, std::max(1, farSource)}};
}

bool CanTile(const Run& run) { return run.srcSize >= 2; }

/// Paints the pieces of one grid on the surface itself.
class NineGridPainter {
public:
    NineGridPainter(cAlphaDIBSection& surface, const NineGridRecord& grid)
        : surface_(surface),
          mode_(grid.Mode),
          x_(Divide(grid.dstLeft, grid.dstWidth, grid.srcLeft, grid.srcWidth, grid.marginLeft,
                    grid.marginRight)),
          y_(Divide(grid.dstTop, grid.dstHeight, grid.srcTop, grid.srcHeight, grid.marginTop,
                    grid.marginBottom)) {}

    void Paint() {
        Row(y_.near, ninegrid::kTileTop);
        Piece(x_.near, y_.middle, false, Has(ninegrid::kTileLeft));
        Centre();
        Piece(x_.far, y_.middle, false, Has(ninegrid::kTileRight));
        Row(y_.far, ninegrid::kTileBottom);
    }

private:
    bool Has(uint32_t bit) const { return static_cast<uint32_t>(mode_) & bit; }

    void Row(const Run& y, uint32_t tileBit) {
        Piece(x_.near, y, false, false);
        Piece(x_.middle, y, Has(tileBit), false);
        Piece(x_.far, y, false, false);
    }

    void Centre() {
        const Run& x = x_.middle;
        const Run& y = y_.middle;
        switch (static_cast<uint32_t>(mode_) & ninegrid::kCentreMask) {
            case ninegrid::kCentreTiled:
                return Piece(x, y, true, true);
            case ninegrid::kCentreTiledInX:
                return Piece(x, y, true, false);
            case ninegrid::kCentreTiledInY:
                return Piece(x, y, false, true);
            case ninegrid::kCentreOnce:
                return Once(x, y);
            default:
                return Stretch(x, y);
        }
    }

    /// One piece; a direction whose source has a single pixel is stretched rather than tiled.
    void Piece(const Run& x, const Run& y, bool tileX, bool tileY) {
        tileX = tileX && CanTile(x);
        tileY = tileY && CanTile(y);
        for (int32_t row = 0; row < y.dstSize; row += tileY ? y.srcSize : y.dstSize) {
            for (int32_t column = 0; column < x.dstSize; column += tileX ? x.srcSize : x.dstSize) {
                Stretch(tileX ? Tile(x, column) : x, tileY ? Tile(y, row) : y);
            }
        }
    }

    /// The tile that starts `offset` into the run; the last one is cut.
    static Run Tile(const Run& run, int32_t offset) {
        const int32_t size = std::min(run.srcSize, run.dstSize - offset);
        return {run.dst + offset, size, run.src, size};
    }

    /// The source at its size in the middle, and its first pixel stretched over the band around.
    void Once(const Run& x, const Run& y) {
        if (x.dstSize < 1 || y.dstSize < 1) return;
        const int32_t left = (x.dstSize - x.srcSize) / 2;
        const int32_t top = (y.dstSize - y.srcSize) / 2;
        const int32_t right = left + x.srcSize;
        const int32_t bottom = top + y.srcSize;
        const Run wholeX{x.dst, x.dstSize, x.src, 1};
        const Run middleY{y.dst + top, y.srcSize, y.src, 1};
        Stretch(wholeX, {y.dst, top, y.src, 1});
        Stretch({x.dst, left, x.src, 1}, middleY);
        Stretch({x.dst + left, x.srcSize, x.src, x.srcSize},
                {y.dst + top, y.srcSize, y.src, y.srcSize});
        Stretch({x.dst + right, x.dstSize - right, x.src, 1}, middleY);
        Stretch(wholeX, {y.dst + bottom, y.dstSize - bottom, y.src, 1});
    }

    void Stretch(const Run& x, const Run& y) {
        if (x.dstSize < 1 || y.dstSize < 1) return;
        surface_.PaintByMode(surface_.hDC(), x.dst, y.dst, x.dstSize, y.dstSize, x.src, y.src,
                             x.srcSize, y.srcSize, mode_);
    }

    cAlphaDIBSection& surface_;
    int32_t mode_;
    Axis x_, y_;
};

}  // namespace

void cAlphaDIBSection::PaintNineGrid(const NineGridRecord& grid) {
    NineGridPainter(*this, grid).Paint();
}

}  // namespace vxgui
