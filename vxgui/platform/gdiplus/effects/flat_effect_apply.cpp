#include <cstring>

#include "vxgui/platform/gdiplus/DeviceBox.h"
#include "vxgui/platform/gdiplus/Effect.h"
#include "vxgui/platform/gdiplus/FlatAccess.h"

namespace vxgui::gdiplus {
namespace {

// Where the caller wants what an effect found out.
struct AuxiliaryData {
    BOOL wanted;
    void** data;
    INT* size;

    // Clears both; false where they are wanted and can't be given.
    bool Clear() const {
        if (data) *data = nullptr;
        if (size) *size = 0;
        return !wanted || (data && size);
    }
    GpStatus Fill(const Effect& effect) const {
        const std::optional<ChannelTables> tables = effect.Tables();
        if (!wanted || !tables) return Ok;
        static_assert(sizeof(ChannelTables) == sizeof(ColorLUTParams));
        *data = GdipAlloc(sizeof(ColorLUTParams));
        if (!*data) return OutOfMemory;
        std::memcpy(*data, &*tables, sizeof(ColorLUTParams));
        *size = static_cast<INT>(sizeof(ColorLUTParams));
        return Ok;
    }
};

GpRect PartOf(const Bitmap& bitmap, const gdi::RECT* roi) {
    const GpRect whole{0, 0, static_cast<INT>(bitmap.Width()), static_cast<INT>(bitmap.Height())};
    return roi ? Common(whole, FromRECT(*roi)) : whole;
}

// Runs body(bitmap, effect, part) for a part that has pixels.
template <class Body>
GpStatus WithPart(GpBitmap* bitmap, CGpEffect* effect, const gdi::RECT* roi,
                  const AuxiliaryData& auxiliary, Body body) {
    if (!auxiliary.Clear()) return InvalidParameter;
    return FlatOn<Effect>(effect, [&](Effect& applied) {
        return FlatOn<Bitmap>(bitmap, [&](Bitmap& found) {
            if (found.IsLocked()) return ObjectBusy;
            const GpRect part = PartOf(found, roi);
            if (IsEmpty(part)) return InvalidParameter;
            const GpStatus status = body(found, applied, part);
            return status == Ok ? auxiliary.Fill(applied) : status;
        });
    });
}

}  // namespace

extern "C" {

GpStatus GdipBitmapApplyEffect(GpBitmap* bitmap, CGpEffect* effect, gdi::RECT* roi, BOOL useAuxData,
                               void** auxData, INT* auxDataSize) {
    return WithPart(bitmap, effect, roi, {useAuxData, auxData, auxDataSize},
                    [](Bitmap& found, const Effect& applied, const GpRect& part) {
                        ApplyEffect(found, applied, part);
                        return Ok;
                    });
}

GpStatus GdipBitmapCreateApplyEffect(GpBitmap* bitmap, CGpEffect* effect, gdi::RECT* roi,
                                     gdi::RECT* outputRect, GpBitmap** outputBitmap,
                                     BOOL useAuxData, void** auxData, INT* auxDataSize) {
    return FlatCreate(outputBitmap, [&] {
        return WithPart(bitmap, effect, roi, {useAuxData, auxData, auxDataSize},
                        [&](const Bitmap& found, const Effect& applied, const GpRect& part) {
                            GpRect place{};
                            Ref<Bitmap> made = EffectOn(found, applied, part, &place);
                            if (!made) return OutOfMemory;
                            if (outputRect) *outputRect = ToRECT(place);
                            return HandOut(outputBitmap, std::move(made));
                        });
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
