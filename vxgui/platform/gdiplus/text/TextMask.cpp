#include "vxgui/platform/gdiplus/text/TextMask.h"

#include <cmath>
#include <new>

#include "vxgui/platform/gdiplus/CairoMatrix.h"
#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/text/FontEngine.h"
#include "vxgui/platform/gdiplus/text/GlyphOutline.h"
#include "vxgui/platform/gdiplus/text/TextContrast.h"

namespace vxgui::gdiplus {
namespace {

// A larger em, in pixels, is painted from its outlines: too large to keep, and hints don't show.
constexpr double kLargestEm = 160;

bool IsMono(TextRenderingHint hint) {
    return hint == TextRenderingHintSingleBitPerPixel ||
           hint == TextRenderingHintSingleBitPerPixelGridFit;
}

bool IsFitted(TextRenderingHint hint) {
    return hint != TextRenderingHintSingleBitPerPixel && hint != TextRenderingHintAntiAlias;
}

// A glyph's image with its place on the device.
struct MaskGlyph {
    GlyphMasks::Image image;
    INT left, top;

    GpRect Box() const { return {left, top, image->width, image->rows}; }
};

class Composer {
public:
    Composer(const StringLayout& layout, const MaskPlace& place)
        : layout_(layout),
          place_(place),
          mono_(IsMono(place.hint)),
          fitted_(IsFitted(place.hint)) {}

    TextMask Run() {
        const double em = layout_.em * std::hypot(place_.world.m21, place_.world.m22);
        const bool outlines = em > kLargestEm;
        if (!outlines) FindGlyphs();
        mask_.box = Common(outlines ? OutlineBox() : GlyphBox(), place_.within);
        if (IsEmpty(mask_.box)) return {};
        mask_.surface.reset(
            cairo_image_surface_create(CAIRO_FORMAT_A8, mask_.box.Width, mask_.box.Height));
        if (cairo_surface_status(mask_.surface.get()) != CAIRO_STATUS_SUCCESS)
            throw std::bad_alloc();
        if (outlines) {
            FillOutlines();
        } else {
            for (const MaskGlyph& glyph : glyphs_) Blend(glyph);
            cairo_surface_mark_dirty(mask_.surface.get());  // or it counts as clear
            FillBars();
        }
        return std::move(mask_);
    }

private:
    GlyphLook LookOf(bool turned) const {
        const auto em = static_cast<REAL>(layout_.em);
        Affine world = place_.world;
        world.dx = world.dy = 0;
        const Affine own = turned ? Affine{0, em, -em, 0, 0, 0} : Affine{em, 0, 0, em, 0, 0};
        return {own * world, mono_, fitted_};
    }

    void FindGlyphs() {
        const GlyphLook looks[] = {LookOf(false), LookOf(true)};
        GlyphMasks& masks = FontEngine::Here().Glyphs();
        glyphs_.reserve(layout_.glyphs.size());
        for (const PlacedGlyph& glyph : layout_.glyphs) {
            const GlyphLook& look = looks[glyph.turned];
            const GpPointF pen =
                place_.world.Apply({static_cast<REAL>(glyph.x), static_cast<REAL>(glyph.y)});
            const Step x = StepOf(pen.X, fitted_ || mono_);
            // Upright lines stand on whole pixels.
            const Step y = StepOf(pen.Y, fitted_ || mono_ || look.Upright());
            auto image =
                masks.Find(layout_.typeface->Face(glyph.face), glyph.index, look, x.phase, y.phase);
            if (image->coverage.empty()) continue;
            const INT left = x.whole + image->left, top = y.whole - image->top;
            glyphs_.push_back({std::move(image), left, top});
        }
    }

    struct Step {
        INT whole;
        int phase;
    };
    static Step StepOf(double at, bool whole) {
        constexpr int kPhases = GlyphMasks::kPhases;
        if (whole) return {DeviceInt(std::floor(at + 0.5)), 0};
        const double steps = std::floor(at * kPhases + 0.5);
        const double pixel = std::floor(steps / kPhases);
        return {DeviceInt(pixel), static_cast<int>(steps - pixel * kPhases)};
    }

    GpRect GlyphBox() const {
        GpRect box{};
        for (const MaskGlyph& glyph : glyphs_) box = Around(box, glyph.Box());
        for (const GpRectF& bar : layout_.bars) {
            const GpRect pixels = PixelsAround(BoxOf(bar, place_.world));
            box = Around(box, {pixels.X - 1, pixels.Y - 1, pixels.Width + 2, pixels.Height + 2});
        }
        return box;
    }

    // Glyphs reach beyond their cells, but not by more than an em.
    GpRect OutlineBox() const {
        const auto em = static_cast<REAL>(layout_.em);
        GpRectF around{};
        for (const PlacedGlyph& glyph : layout_.glyphs) {
            const auto x = static_cast<REAL>(glyph.x), y = static_cast<REAL>(glyph.y);
            around = Around(around, GpRectF{x - 2 * em, y - 2 * em, 5 * em, 4 * em});
        }
        for (const GpRectF& bar : layout_.bars) around = Around(around, bar);
        return PixelsAround(BoxOf(around, place_.world));
    }

    static bool Nothing(const GpRect& box) { return IsEmpty(box); }
    static bool Nothing(const GpRectF& box) { return !(box.Width > 0 && box.Height > 0); }
    template <class Rect>
    static Rect Around(const Rect& a, const Rect& b) {
        if (Nothing(a)) return b;
        if (Nothing(b)) return a;
        const auto left = std::min(a.X, b.X), top = std::min(a.Y, b.Y);
        return {left, top, std::max(a.X + a.Width, b.X + b.Width) - left,
                std::max(a.Y + a.Height, b.Y + b.Height) - top};
    }

    void Blend(const MaskGlyph& glyph) const {
        const GpRect part = Common(glyph.Box(), mask_.box);
        if (IsEmpty(part)) return;
        uint8_t* const bytes = cairo_image_surface_get_data(mask_.surface.get());
        const int stride = cairo_image_surface_get_stride(mask_.surface.get());
        const ContrastTable& table = TableOfContrast(mono_ ? kNeutralContrast : place_.contrast);
        for (INT y = part.Y; y < part.Y + part.Height; ++y) {
            const uint8_t* from = glyph.image->coverage.data() +
                                  (y - glyph.top) * glyph.image->width + part.X - glyph.left;
            uint8_t* to = bytes + ptrdiff_t{y - mask_.box.Y} * stride + part.X - mask_.box.X;
            for (INT x = 0; x < part.Width; ++x) {
                const int coverage = table[from[x]];
                to[x] = static_cast<uint8_t>(to[x] + coverage - to[x] * coverage / 255);
            }
        }
    }

    struct ContextEnd {
        void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
    };
    using Context = std::unique_ptr<cairo_t, ContextEnd>;

    Context Open() const {
        Context cairo(cairo_create(mask_.surface.get()));
        cairo_set_antialias(cairo.get(), mono_ ? CAIRO_ANTIALIAS_NONE : CAIRO_ANTIALIAS_DEFAULT);
        cairo_translate(cairo.get(), -mask_.box.X, -mask_.box.Y);
        return cairo;
    }

    void FillBars() const {
        if (layout_.bars.empty()) return;
        const Context cairo = Open();
        const bool upright = LookOf(false).Upright();
        const cairo_matrix_t world = CairoMatrix(place_.world);
        if (!upright) cairo_transform(cairo.get(), &world);
        for (const GpRectF& bar : layout_.bars) {
            const GpRectF box = upright ? OnPixels(BoxOf(bar, place_.world)) : bar;
            cairo_rectangle(cairo.get(), box.X, box.Y, box.Width, box.Height);
        }
        cairo_fill(cairo.get());
        cairo_surface_flush(mask_.surface.get());
    }

    // At least a pixel thick.
    static GpRectF OnPixels(const GpRectF& box) {
        const REAL left = std::round(box.X), top = std::round(box.Y);
        return {left, top, std::round(box.X + box.Width) - left,
                std::max(1.0f, std::round(box.Height))};
    }

    class CairoSink final : public FigureSink {
    public:
        explicit CairoSink(cairo_t* cairo) : cairo_(cairo) {}
        void Move(GpPointF to) override { cairo_move_to(cairo_, to.X, to.Y); }
        void Line(GpPointF to) override { cairo_line_to(cairo_, to.X, to.Y); }
        void Curve(GpPointF a, GpPointF b, GpPointF to) override {
            cairo_curve_to(cairo_, a.X, a.Y, b.X, b.Y, to.X, to.Y);
        }
        void Close() override { cairo_close_path(cairo_); }

    private:
        cairo_t* const cairo_;
    };

    void FillOutlines() const {
        const Context cairo = Open();
        CairoSink sink(cairo.get());
        DrawFigures(layout_, place_.world, sink);
        cairo_fill(cairo.get());
        cairo_surface_flush(mask_.surface.get());
    }

    const StringLayout& layout_;
    const MaskPlace& place_;
    const bool mono_, fitted_;
    std::vector<MaskGlyph> glyphs_;
    TextMask mask_;
};

}  // namespace

TextMask MakeTextMask(const StringLayout& layout, const MaskPlace& place) {
    return Composer(layout, place).Run();
}

}  // namespace vxgui::gdiplus
