#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/Effect.h"
#include "vxgui/platform/gdiplus/Matrix.h"
#include "vxgui/platform/gdiplus/graphics/ImageCall.h"
#include "vxgui/platform/gdiplus_drawing.h"

namespace vxgui::gdiplus {
namespace {

/// What is drawn, and where it goes in the coordinates of the part.
struct Drawn {
    Ref<Bitmap> bitmap;
    GpRectF source;
    GpRectF place;
};

// An effect that spreads a picture shows whole, with what it adds around the part.
std::optional<Drawn> WithEffect(const Bitmap& bitmap, const Effect& effect, const GpRectF& part) {
    const GpRect whole{0, 0, static_cast<INT>(bitmap.Width()), static_cast<INT>(bitmap.Height())};
    const GpRect touched = Common(PixelsAround(part), whole);
    if (IsEmpty(touched)) return std::nullopt;
    GpRect place = touched;
    Ref<Bitmap> made = EffectOn(bitmap, effect, touched, &place);
    if (!made) throw std::bad_alloc();
    const auto x = static_cast<REAL>(place.X), y = static_cast<REAL>(place.Y);
    if (effect.Expands()) return Drawn{made, WholeOf(*made), ToFloat(place)};
    return Drawn{made, {part.X - x, part.Y - y, part.Width, part.Height}, part};
}

GpStatus DrawAt(Graphics& graphics, const Drawn& drawn, const Affine& place,
                const ImageAttributes* attributes) {
    Corners corners = CornersOf(drawn.place);
    for (GpPointF& point : corners.points) point = place.Apply(point);
    return DrawPart(graphics, {*drawn.bitmap, drawn.source, attributes, {}}, corners.points);
}

GpStatus DrawFX(Graphics& graphics, Bitmap& bitmap, const GpRectF& part, const Affine& place,
                const Effect* effect, const ImageAttributes* attributes) {
    if (bitmap.IsLocked()) return ObjectBusy;
    if (!effect) return DrawAt(graphics, {Ref<Bitmap>(&bitmap), part, part}, place, attributes);
    const std::optional<Drawn> drawn = WithEffect(bitmap, *effect, part);
    return drawn ? DrawAt(graphics, *drawn, place, attributes) : Ok;
}

}  // namespace

extern "C" GpStatus GdipDrawImageFX(GpGraphics* graphics, GpImage* image, GpRectF* source,
                                    GpMatrix* xForm, CGpEffect* effect,
                                    GpImageAttributes* imageAttributes, Unit srcUnit) {
    if (!IsSourceUnit(srcUnit)) return InvalidParameter;
    return WithImage(graphics, image, [&](Graphics& found, Bitmap& bitmap) {
        const GpRectF part = source ? InPixels(*source, srcUnit, bitmap) : WholeOf(bitmap);
        return WithOptional<Matrix>(xForm, [&](const Matrix* matrix) {
            return WithOptional<Effect>(effect, [&](const Effect* change) {
                return WithOptional<ImageAttributes>(
                    imageAttributes, [&](const ImageAttributes* attributes) {
                        return DrawFX(found, bitmap, part, matrix ? matrix->value : Affine{},
                                      change, attributes);
                    });
            });
        });
    });
}

}  // namespace vxgui::gdiplus
