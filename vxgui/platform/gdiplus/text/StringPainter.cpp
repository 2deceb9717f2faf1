#include "vxgui/platform/gdiplus/text/StringPainter.h"

#include <cmath>

#include "vxgui/platform/gdiplus/CairoMatrix.h"
#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/graphics/DrawnWords.h"
#include "vxgui/platform/gdiplus/words/WordBlends.h"

namespace vxgui::gdiplus {
namespace {

// Pixels of a mask that is kept for the next time; larger ones are made for what is seen alone.
constexpr double kLargestKept = 1 << 16;
constexpr GpRect kEverywhere{-(1 << 24), -(1 << 24), 1 << 25, 1 << 25};

bool IsUpright(const Affine& a) { return a.m12 == 0 && a.m21 == 0; }

// The clip of a layout rectangle; a side without a bound doesn't clip.
GpRectF ClipOf(const GpRectF& rect) {
    constexpr REAL kFar = 1 << 24;
    const bool wide = rect.Width > 0, high = rect.Height > 0;
    return {wide ? rect.X : -kFar, high ? rect.Y : -kFar, wide ? rect.Width : 2 * kFar,
            high ? rect.Height : 2 * kFar};
}

GpRect RoundedBox(const GpRectF& box) {
    const INT left = DeviceInt(std::round(box.X)), top = DeviceInt(std::round(box.Y));
    return {left, top, DeviceInt(std::round(double{box.X} + box.Width)) - left,
            DeviceInt(std::round(double{box.Y} + box.Height)) - top};
}

// Room for ink beyond the cells counts too.
double PixelsOf(const StringLayout& layout, const Affine& world) {
    const auto em = static_cast<REAL>(layout.em);
    const GpRectF& b = layout.bounds;
    const GpRectF box = BoxOf({b.X - em, b.Y - em, b.Width + 2 * em, b.Height + 2 * em}, world);
    return double{box.Width} * box.Height;
}

bool SameMask(const MaskPlace& a, const MaskPlace& b) {
    return a.world == b.world && a.hint == b.hint && a.contrast == b.contrast;
}

class Painter {
public:
    Painter(Graphics& graphics, KeptLayout& kept, const GpRectF& rect, const FormatSettings& format)
        : graphics_(graphics),
          kept_(kept),
          rect_(rect),
          world_(graphics.WorldToDevice()),
          clips_(!format.Has(StringFormatFlagsNoClip)) {
        // The corner's whole pixels are left out of the mask, so that it serves elsewhere too.
        const GpPointF corner = world_.Apply({rect.X, rect.Y});
        shiftX_ = DeviceInt(std::floor(corner.X));
        shiftY_ = DeviceInt(std::floor(corner.Y));
        place_.world = world_;
        place_.world.dx = corner.X - static_cast<REAL>(shiftX_);
        place_.world.dy = corner.Y - static_cast<REAL>(shiftY_);
        place_.hint = graphics.state.textRenderingHint;
        place_.contrast = graphics.state.textContrast;
    }

    GpStatus Run(const Brush& brush) {
        TextMask once;
        const TextMask& mask = Mask(once);
        if (!mask.surface) return Ok;
        const GpRect box{mask.box.X + shiftX_, mask.box.Y + shiftY_, mask.box.Width,
                         mask.box.Height};
        const GpRect seen = clips_ ? Common(box, ClipBox()) : box;
        if (IsEmpty(seen)) return Ok;
        if (DrawnOnWords(mask, box, seen, brush)) return Ok;
        return graphics_.PaintDevice(seen, [&](cairo_t* cairo) {
            const cairo_matrix_t world = CairoMatrix(world_);
            cairo_matrix_t device;
            cairo_get_matrix(cairo, &device);
            cairo_transform(cairo, &world);
            if (clips_ && !IsUpright(world_)) Clip(cairo);
            graphics_.SetSource(cairo, brush, seen);
            cairo_set_matrix(cairo, &device);
            cairo_mask_surface(cairo, mask.surface.get(), box.X, box.Y);
        });
    }

private:
    const TextMask& Mask(TextMask& once) {
        if (kept_.hasMask && SameMask(kept_.place, place_)) return kept_.mask;
        if (PixelsOf(kept_.layout, place_.world) > kLargestKept) {
            place_.within = graphics_.Drawable(clips_ ? ClipBox() : kEverywhere);
            place_.within.X -= shiftX_;
            place_.within.Y -= shiftY_;
            once = MakeTextMask(kept_.layout, place_);
            return once;
        }
        place_.within = kEverywhere;
        kept_.mask = MakeTextMask(kept_.layout, place_);
        kept_.place = place_;
        kept_.hasMask = true;
        return kept_.mask;
    }

    // One colour on words, within a level clip, takes no drawing library.
    bool DrawnOnWords(const TextMask& mask, const GpRect& box, const GpRect& seen,
                      const Brush& brush) const {
        ARGB color;
        if (!brush.IsSolid(&color) || graphics_.Replaces()) return false;
        if (clips_ && !IsUpright(world_)) return false;
        const ARGB word = WordOf(color);
        const GpRect drawn = graphics_.Drawable(seen);
        if (IsEmpty(drawn)) return true;
        const uint8_t* const coverage = cairo_image_surface_get_data(mask.surface.get());
        const ptrdiff_t stride = cairo_image_surface_get_stride(mask.surface.get());
        return DrawOnWords(graphics_, drawn, [&](ARGB* to, INT x, INT y, size_t count) {
            DrawCovered(to, coverage + (y - box.Y) * stride + (x - box.X), count, word);
        });
    }

    GpRect ClipBox() const {
        const GpRectF box = BoxOf(ClipOf(rect_), world_);
        return IsUpright(world_) ? RoundedBox(box) : PixelsAround(box);
    }

    void Clip(cairo_t* cairo) const {
        const GpRectF clip = ClipOf(rect_);
        cairo_rectangle(cairo, clip.X, clip.Y, clip.Width, clip.Height);
        cairo_clip(cairo);
    }

    Graphics& graphics_;
    KeptLayout& kept_;
    const GpRectF rect_;
    const Affine world_;
    const bool clips_;
    INT shiftX_ = 0, shiftY_ = 0;
    MaskPlace place_;
};

}  // namespace

GpStatus PaintString(Graphics& graphics, KeptLayout& kept, const GpRectF& rect,
                     const FormatSettings& format, const Brush& brush) {
    return Painter(graphics, kept, rect, format).Run(brush);
}

}  // namespace vxgui::gdiplus
