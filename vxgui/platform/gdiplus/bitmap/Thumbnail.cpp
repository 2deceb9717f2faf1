#include "vxgui/platform/gdiplus/bitmap/Thumbnail.h"

#include <cairo.h>

#include <algorithm>
#include <memory>
#include <new>

#include "vxgui/platform/gdiplus/codec/ImageLoader.h"

namespace vxgui::gdiplus {
namespace {

constexpr UINT kDefaultSide = 120;

struct DestroySurface {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
};
struct DestroyContext {
    void operator()(cairo_t* context) const { cairo_destroy(context); }
};
using Surface = std::unique_ptr<cairo_surface_t, DestroySurface>;
using Context = std::unique_ptr<cairo_t, DestroyContext>;

INT Proportional(UINT side, UINT of, UINT to) {
    return static_cast<INT>(std::max<uint64_t>(1, uint64_t{side} * to / of));
}

GpPoint SizeOf(const Bitmap& bitmap, UINT width, UINT height) {
    if (!width && !height) return {kDefaultSide, kDefaultSide};
    if (!width) return {Proportional(height, bitmap.Height(), bitmap.Width()), INT(height)};
    if (!height) return {INT(width), Proportional(width, bitmap.Width(), bitmap.Height())};
    return {INT(width), INT(height)};
}

// A surface over the rows of a premultiplied bitmap.
Surface SurfaceOf(Bitmap& bitmap) {
    Surface surface(cairo_image_surface_create_for_data(bitmap.Row(0), CAIRO_FORMAT_ARGB32,
                                                        INT(bitmap.Width()), INT(bitmap.Height()),
                                                        bitmap.Stride()));
    if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) throw std::bad_alloc();
    return surface;
}

// The small picture that a camera stored along, or none.
Ref<Bitmap> StoredThumbnail(const Bitmap& bitmap) {
    const auto at =
        std::ranges::find(bitmap.properties, codecs::kThumbnailData, &codecs::ImageProperty::id);
    return at == bitmap.properties.end() ? nullptr : LoadBitmap(at->value);
}

}  // namespace

Ref<Bitmap> Thumbnail(const Bitmap& bitmap, UINT width, UINT height) {
    const GpPoint size = SizeOf(bitmap, width, height);
    const Ref<Bitmap> stored = StoredThumbnail(bitmap);
    const Bitmap& shown = stored ? *stored : bitmap;
    const Ref<Bitmap> source = shown.CopyArea(shown.Bounds(), PixelFormat32bppPARGB);
    Ref<Bitmap> result = Bitmap::Create(size.X, size.Y, PixelFormat32bppPARGB);
    const Surface from = SurfaceOf(*source), to = SurfaceOf(*result);
    const Context context(cairo_create(to.get()));
    cairo_scale(context.get(), double(size.X) / shown.Width(), double(size.Y) / shown.Height());
    cairo_set_source_surface(context.get(), from.get(), 0, 0);
    cairo_pattern_set_extend(cairo_get_source(context.get()), CAIRO_EXTEND_PAD);
    cairo_pattern_set_filter(cairo_get_source(context.get()), CAIRO_FILTER_GOOD);
    cairo_set_operator(context.get(), CAIRO_OPERATOR_SOURCE);
    cairo_paint(context.get());
    return result;
}

}  // namespace vxgui::gdiplus
