#include "vxgui/platform/gdiplus/CairoMatrix.h"
#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/Graphics.h"

namespace vxgui::gdiplus {
namespace {

// Gives a context back as it was.
class Borrowed {
public:
    explicit Borrowed(cairo_t* cairo) : cairo_(cairo) { cairo_save(cairo); }
    ~Borrowed() {
        cairo_new_path(cairo_);
        cairo_restore(cairo_);
    }
    Borrowed(const Borrowed&) = delete;
    Borrowed& operator=(const Borrowed&) = delete;

private:
    cairo_t* const cairo_;
};

// Keeps a target open.
class Opened {
public:
    Opened(DrawingTarget& target, const GpRect& area)
        : target_(target), area_(area), surface_(target.Begin(area)) {}
    ~Opened() {
        if (surface_) target_.End(area_);
    }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;

    cairo_surface_t* Surface() const { return surface_; }

private:
    DrawingTarget& target_;
    const GpRect area_;
    cairo_surface_t* const surface_;
};

void ClipToBox(cairo_t* cairo, const GpRect& box) {
    cairo_rectangle(cairo, box.X, box.Y, box.Width, box.Height);
    cairo_clip(cairo);
}

void ClipToRegion(cairo_t* cairo, const gdi::PixelRegion* clip, const GpRect& area) {
    if (!clip || clip->Kind() == gdi::SIMPLEREGION) return;  // the area lies inside
    for (const pixman_box32_t& box : clip->BoxesInRows(area.Y, area.Y + area.Height)) {
        cairo_rectangle(cairo, box.x1, box.y1, box.x2 - box.x1, box.y2 - box.y1);
    }
    cairo_clip(cairo);
}

GpStatus StatusOf(cairo_t* cairo) {
    const cairo_status_t status = cairo_status(cairo);
    if (status == CAIRO_STATUS_SUCCESS) return Ok;
    return status == CAIRO_STATUS_NO_MEMORY ? OutOfMemory : GenericError;
}

}  // namespace

void Graphics::ClipToPixels(cairo_t* cairo, const GpRect& area) const {
    ClipToRegion(cairo, target_->Clip(), area);
    ClipToRegion(cairo, state.clip.Pixels(), area);
    ClipToRegion(cairo, state.outerClip.Pixels(), area);
}

void Graphics::Prepare(cairo_t* cairo, const Affine& user) const {
    cairo_set_operator(cairo, Replaces() ? CAIRO_OPERATOR_SOURCE : CAIRO_OPERATOR_OVER);
    cairo_set_antialias(cairo, Antialiases() ? CAIRO_ANTIALIAS_DEFAULT : CAIRO_ANTIALIAS_NONE);
    const cairo_matrix_t matrix = CairoMatrix(user);
    cairo_set_matrix(cairo, &matrix);
}

// A context that has failed once does nothing more.
cairo_t* Graphics::ContextOn(cairo_surface_t* surface) {
    const bool kept = context_ && cairo_get_target(context_.get()) == surface &&
                      cairo_status(context_.get()) == CAIRO_STATUS_SUCCESS;
    if (!kept) context_.reset(cairo_create(surface));
    return context_.get();
}

GpStatus Graphics::PaintExactly(const GpRect& area, const Affine& user, const Draw& draw) {
    // A world that has no area can't show anything.
    if (IsEmpty(area) || !(std::abs(user.Determinant()) > 0)) return Ok;
    const Opened opened(*target_, area);
    if (!opened.Surface()) return OutOfMemory;
    cairo_t* const cairo = ContextOn(opened.Surface());
    const Borrowed borrowed(cairo);
    ClipToPixels(cairo, area);
    Prepare(cairo, user);
    draw(cairo);
    return StatusOf(cairo);
}

GpStatus Graphics::PaintArea(const GpRect& device, const Affine& user, const Draw& draw) {
    const GpRect area = Drawable(device);
    return PaintExactly(area, user, [&](cairo_t* cairo) {
        const cairo_matrix_t matrix = CairoMatrix(user);
        cairo_identity_matrix(cairo);
        ClipToBox(cairo, area);
        cairo_set_matrix(cairo, &matrix);
        draw(cairo);
    });
}

GpStatus Graphics::Paint(const GpRectF& bounds, const Draw& draw) {
    return PaintArea(DeviceBox(bounds), WorldToDevice(), draw);
}

GpStatus Graphics::PaintDevice(const GpRect& bounds, const Draw& draw) {
    return PaintArea(bounds, {}, draw);
}

void Graphics::SetSource(cairo_t* cairo, const Brush& brush, const GpRect& device) const {
    ARGB color;
    if (brush.IsSolid(&color)) {
        cairo_set_source_rgba(cairo, (color >> 16 & 255) / 255.0, (color >> 8 & 255) / 255.0,
                              (color & 255) / 255.0, (color >> 24) / 255.0);
        return;
    }
    const Pattern pattern =
        brush.MakePattern({WorldToDevice(), Drawable(device), state.renderingOrigin});
    if (!pattern) throw std::bad_alloc();
    cairo_set_source(cairo, pattern.get());
}

void Graphics::MoveToSamples(cairo_t* cairo) const {
    const double offset = ShapeOffset();
    cairo_matrix_t moved = CairoMatrix(WorldToDevice());
    moved.x0 += offset;
    moved.y0 += offset;
    cairo_set_matrix(cairo, &moved);
}

}  // namespace vxgui::gdiplus
