#include <algorithm>
#include <cmath>

#include "vxgui/base/OutOfMemory.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/surface/MosaicPaint.h"
#include "vxgui/theme/FrameMosaic.h"
#include "vxgui/theme/NineSlice.h"
#include "vxgui/theme/RectLayout.h"
#include "vxgui/theme/ThemeItem.h"
#include "vxgui/theme/TileSteps.h"

namespace vxgui {
namespace {

struct FrameRect {
    Span x;
    Span y;
};

// Pixels left over by the division are never shown.
FrameRect FrameOf(const cAlphaDIBSection& strip, int32_t count, bool vertical, int32_t frame) {
    FrameRect rect{{0, strip.Width()}, {0, strip.Height()}};
    if (count < 2) return rect;
    Span& along = vertical ? rect.y : rect.x;
    along.size /= count;
    along.start = along.size * frame;
    return rect;
}

// The pitch counts for the strip that it was made with, whose middle is the widest tile, and only
// where the middle isn't cut.
double TilePitchOf(const Band& band, double pitch) {
    return pitch > 1 && std::ceil(pitch - 1e-6) == band.source.size ? pitch : 0;
}

// Calls `paint(target x, target y, source x, source y)` for each step of a piece.
template <class Paint>
void ForEachPiece(const Band& x, const Band& y, bool tiledX, bool tiledY, Paint paint) {
    if (x.target.size <= 0 || y.target.size <= 0) return;
    ForEachStep(y, tiledY, [&](Span targetY, Span sourceY) {
        ForEachStep(x, tiledX,
                    [&](Span targetX, Span sourceX) { paint(targetX, targetY, sourceX, sourceY); });
    });
}

Span Part(Span span, int32_t offset, int32_t size) { return {WrapAdd(span.start, offset), size}; }

// The middle once at its size in the centre of the area, the rest filled with its first pixel.
template <class Paint>
void CopyAndFill(const Band& x, const Band& y, Paint paint) {
    const Span wide = x.target, high = y.target;
    const Span pixelX{x.source.start, 1}, pixelY{y.source.start, 1};
    const int32_t left = (wide.size - x.source.size) / 2, top = (high.size - y.source.size) / 2;
    const bool spareX = wide.size > x.source.size, spareY = high.size > y.source.size;
    // Where there is no room to spare the whole area is copied, centred in the source. As the
    // source was cut to the area before, these offsets come out as 0.
    const Span copyX = spareX ? Part(wide, left, x.source.size) : wide;
    const Span copyY = spareY ? Part(high, top, y.source.size) : high;
    const Span fromX =
        spareX ? x.source : Part(x.source, (x.source.size - wide.size) / 2, wide.size);
    const Span fromY =
        spareY ? y.source : Part(y.source, (y.source.size - high.size) / 2, high.size);
    if (spareY) paint(wide, Part(high, 0, top), pixelX, pixelY);
    if (spareX) paint(Part(wide, 0, left), copyY, pixelX, pixelY);
    paint(copyX, copyY, fromX, fromY);
    if (spareX) {
        const int32_t used = left + x.source.size;
        paint(Part(wide, used, wide.size - used), copyY, pixelX, pixelY);
    }
    if (spareY) {
        const int32_t used = top + y.source.size;
        paint(wide, Part(high, used, high.size - used), pixelX, pixelY);
    }
}

template <class Paint>
void PaintCentre(const Band& x, const Band& y, int32_t tile, const FrameTiling& tiling,
                 Paint paint) {
    if (x.target.size <= 0 || y.target.size <= 0) return;
    if (tile == CopyXYFillRest) return CopyAndFill(x, y, paint);
    ForEachPiece(x, y, tiling.across, tiling.down, paint);
}

// A source of a single pixel is stretched: the cheap way to fill.
FrameTiling TilingOf(const ThemeItem& item, int32_t width, int32_t height) {
    const int32_t tile = item.Tile();
    const bool canX = width > 1, canY = height > 1;
    return {.left = item.TileLeft() && canY,
            .top = item.TileTop() && canX,
            .right = item.TileRight() && canY,
            .bottom = item.TileBottom() && canX,
            .across = (tile == TileXTileY || tile == TileXStretchY) && canX,
            .down = (tile == TileXTileY || tile == StretchXTileY) && canY};
}

// Pieces that don't overlap are painted in one pass, which leaves the same pixels:
// `paint(left, top, parts)` answers whether it could.
template <class Paint>
bool PaintAsOne(const cAlphaDIBSection& image, const SlicedAxis& x, const SlicedAxis& y,
                const FrameTiling& tiling, Paint paint) {
    if (!MayPaintMosaics(image) || !FrameMosaic::Fits(x, y, image.Width(), image.Height()))
        return false;
    const FrameMosaic mosaic(x, y, tiling);
    return paint(x.near.target.start, y.near.target.start, mosaic.Parts());
}

}  // namespace

void ThemeItem::Draw(gdi::HDC hDC, int32_t xD, int32_t yD, int32_t wD, int32_t hD, int32_t Frame) {
    DrawBackground(hDC, xD, yD, wD, hD, Frame, Frame);
}

void ThemeItem::DrawBackground(gdi::HDC hDC, int32_t xD, int32_t yD, int32_t wD, int32_t hD,
                               int32_t Frame, int32_t GlyphFrame) try {
    const KeepAlive keep(this);
    if (image_) {
        const int32_t frame = Frame == -1 ? currentFrame_ : Frame;
        if (frame >= 0 && frame < frameCount_) PaintImage(hDC, xD, yD, wD, hD, frame);
    }
    if (glyph_) {
        const int32_t frame = GlyphFrame == -1 ? currentGlyphFrame_ : GlyphFrame;
        const int32_t count = GlyphFrames();
        if (frame >= 0 && frame < count) PaintGlyph(hDC, xD, yD, wD, hD, frame);
    }
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("ThemeItem.DrawBackground");
}

void ThemeItem::PaintImage(gdi::HDC hDC, int32_t xD, int32_t yD, int32_t wD, int32_t hD,
                           int32_t frame) {
    const FrameRect rect = FrameOf(*image_, frameCount_, FrameVert(), frame);
    SlicedAxis x = SliceAxis({xD, wD}, rect.x, imageMargin_.left, imageMargin_.right);
    SlicedAxis y = SliceAxis({yD, hD}, rect.y, imageMargin_.top, imageMargin_.bottom);
    x.middle.pitch = TilePitchOf(x.middle, tilePitch_.x);
    y.middle.pitch = TilePitchOf(y.middle, tilePitch_.y);
    const FrameTiling tiling = TilingOf(*this, x.middle.source.size, y.middle.source.size);
    const bool perPixel = imageFlags_ & kPerPixel, blended = perPixel || IsTranslucent();
    const auto paintAll = [&](int32_t left, int32_t top, std::span<const gdi::MosaicPart> parts) {
        return blended
                   ? AlphaPaintMosaic(*image_, hDC, left, top, parts, imageAlpha_, perPixel)
                   : TransPaintMosaic(*image_, hDC, left, top, parts, image_->TransparentColor());
    };
    const bool merged = blended || imageFlags_ & kTrans;
    if (merged && Tile() != CopyXYFillRest && PaintAsOne(*image_, x, y, tiling, paintAll)) return;
    const auto paint = [&](Span targetX, Span targetY, Span sourceX, Span sourceY) {
        PaintImagePiece(hDC, targetX.start, targetY.start, targetX.size, targetY.size,
                        sourceX.start, sourceY.start, sourceX.size, sourceY.size);
    };
    ForEachPiece(x.near, y.near, false, false, paint);
    ForEachPiece(x.middle, y.near, tiling.top, false, paint);
    ForEachPiece(x.far, y.near, false, false, paint);
    ForEachPiece(x.near, y.middle, false, tiling.left, paint);
    PaintCentre(x.middle, y.middle, Tile(), tiling, paint);
    ForEachPiece(x.far, y.middle, false, tiling.right, paint);
    ForEachPiece(x.near, y.far, false, false, paint);
    ForEachPiece(x.middle, y.far, tiling.bottom, false, paint);
    ForEachPiece(x.far, y.far, false, false, paint);
}

void ThemeItem::PaintImagePiece(gdi::HDC hDC, int32_t xD, int32_t yD, int32_t wD, int32_t hD,
                                int32_t xS, int32_t yS, int32_t wS, int32_t hS) {
    if (!image_) return;
    // An alpha of 0 doesn't hide the item: like 253 and above it paints the cheap, opaque way.
    if (imageFlags_ & kPerPixel) {
        image_->AlphaPaintPicture(hDC, xD, yD, wD, hD, xS, yS, wS, hS, imageAlpha_, true);
    } else if (IsTranslucent()) {
        image_->AlphaPaintPicture(hDC, xD, yD, wD, hD, xS, yS, wS, hS, imageAlpha_, false);
    } else if (imageFlags_ & kTrans) {
        image_->TransPaintPicture(hDC, xD, yD, wD, hD, xS, yS, wS, hS, image_->TransparentColor());
    } else {
        image_->PaintPicture(hDC, xD, yD, wD, hD, xS, yS, wS, hS, gdi::SRCCOPY);
    }
}

void ThemeItem::PaintGlyph(gdi::HDC hDC, int32_t xD, int32_t yD, int32_t wD, int32_t hD,
                           int32_t frame) {
    const FrameRect rect = FrameOf(*glyph_, glyphFrameCount_, GlyphFrameVert(), frame);
    const int32_t w = rect.x.size, h = rect.y.size, xS = rect.x.start, yS = rect.y.start;
    const Span areaX = Deflate({xD, wD}, glyphMargin_.left, glyphMargin_.right);
    const Span areaY = Deflate({yD, hD}, glyphMargin_.top, glyphMargin_.bottom);
    const int32_t x = AlignAlong(areaX, w, glyphAlign_ / 3),
                  y = AlignAlong(areaY, h, glyphAlign_ % 3);
    if (imageFlags_ & kGlyphPerPixel) {
        const bool hasAlpha = glyph_->HasAlphaChannel(0, 0, -1, -1);
        glyph_->AlphaPaintPicture(hDC, x, y, w, h, xS, yS, w, h, glyphAlpha_, hasAlpha);
    } else if (imageFlags_ & kGlyphTrans) {
        glyph_->TransPaintPicture(hDC, x, y, w, h, xS, yS, w, h, glyph_->TransparentColor());
    } else {
        glyph_->PaintPicture(hDC, x, y, w, h, xS, yS, w, h, gdi::SRCCOPY);
    }
}

}  // namespace vxgui
