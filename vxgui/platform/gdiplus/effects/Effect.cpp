#include "vxgui/platform/gdiplus/Effect.h"

#include "vxgui/platform/gdiplus/DeviceBox.h"

namespace vxgui::gdiplus {
namespace {

GpRect Grown(const GpRect& r, INT by) {
    return {r.X - by, r.Y - by, r.Width + 2 * by, r.Height + 2 * by};
}

GpRect Bounds(const Bitmap& bitmap) {
    return {0, 0, static_cast<INT>(bitmap.Width()), static_cast<INT>(bitmap.Height())};
}

// A box of the bitmap; what lies beyond `shown`, a part of the bitmap, is clear.
EffectPicture Read(const Bitmap& bitmap, const GpRect& box, const GpRect& shown) {
    EffectPicture picture{box.Width, box.Height, {}};
    picture.pixels.resize(static_cast<size_t>(box.Width) * static_cast<size_t>(box.Height));
    const GpRect common = Common(box, shown);
    for (INT y = common.Y; y < common.Y + common.Height; ++y) {
        bitmap.ReadStraight(common.X, y,
                            picture.Row(y - box.Y).subspan(static_cast<size_t>(common.X - box.X),
                                                           static_cast<size_t>(common.Width)));
    }
    return picture;
}

void Write(Bitmap& bitmap, EffectPicture& picture, const GpRect& area, GpPoint to) {
    for (INT y = 0; y < area.Height; ++y) {
        bitmap.WriteStraight(
            to.X, to.Y + y,
            picture.Row(area.Y + y)
                .subspan(static_cast<size_t>(area.X), static_cast<size_t>(area.Width)));
    }
}

// A place with all that its pixels need, and where the place lies in it.
struct Work {
    EffectPicture picture;
    GpRect area;

    Work(const Effect& effect, EffectPicture read, const GpRect& box, const GpRect& place)
        : picture(std::move(read)),
          area{place.X - box.X, place.Y - box.Y, place.Width, place.Height} {
        effect.Apply(picture, area, {box.X, box.Y});
    }
};

// Pixels around a part take part in it, as they do in the whole picture.
Work WorkInPlace(const Bitmap& bitmap, const Effect& effect, const GpRect& part) {
    const GpRect box = Common(Grown(part, effect.Reach()), Bounds(bitmap));
    return Work(effect, Read(bitmap, box, Bounds(bitmap)), box, part);
}

// The part is all there is.
Work WorkOnItsOwn(const Bitmap& bitmap, const Effect& effect, const GpRect& part,
                  const GpRect& place) {
    const GpRect box = Grown(place, effect.Reach());
    return Work(effect, Read(bitmap, box, part), box, place);
}

}  // namespace

void ApplyEffect(Bitmap& bitmap, const Effect& effect, const GpRect& part) {
    Work work = WorkInPlace(bitmap, effect, part);
    Write(bitmap, work.picture, work.area, {part.X, part.Y});
}

Ref<Bitmap> EffectOn(const Bitmap& bitmap, const Effect& effect, const GpRect& part,
                     GpRect* place) {
    *place = effect.Expands() ? Grown(part, effect.Reach()) : part;
    Ref<Bitmap> result = Bitmap::Create(place->Width, place->Height, PixelFormat32bppARGB);
    if (!result) return nullptr;
    Work work = effect.Expands() ? WorkOnItsOwn(bitmap, effect, part, *place)
                                 : WorkInPlace(bitmap, effect, part);
    Write(*result, work.picture, work.area, {0, 0});
    return result;
}

}  // namespace vxgui::gdiplus
