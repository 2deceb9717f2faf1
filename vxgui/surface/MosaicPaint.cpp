#include "vxgui/surface/MosaicPaint.h"

#include <typeinfo>

#include "vxgui/frame/Apartment.h"
#include "vxgui/pixels/Blend.h"
#include "vxgui/surface/KeyMerger.h"

namespace vxgui {
namespace {

class MosaicBlender final : public gdi::WordMerger {
public:
    MosaicBlender(uint8_t alpha, bool hasAlpha) : alpha_(alpha), hasAlpha_(hasAlpha) {}

    void Merge(const uint32_t* source, uint32_t* target, int32_t count) override {
        const auto pixels = static_cast<size_t>(count);
        Blend({reinterpret_cast<const ARGB*>(source), pixels},
              {reinterpret_cast<ARGB*>(target), pixels}, alpha_, hasAlpha_);
    }

private:
    const uint8_t alpha_;
    const bool hasAlpha_;
};

}  // namespace

bool MayPaintMosaics(const cAlphaDIBSection& surface) {
    return typeid(surface) == typeid(cAlphaDIBSection) &&
           !(gUseSystemAlphaBlend && surface.UseMsImag32());
}

bool AlphaPaintMosaic(const cAlphaDIBSection& surface, gdi::HDC dc, int32_t x, int32_t y,
                      std::span<const gdi::MosaicPart> parts, uint8_t alpha, bool hasAlpha) {
    MosaicBlender blender(alpha, hasAlpha);
    return gdi::MergeMosaic(dc, x, y, {surface.hDC(), parts}, blender);
}

bool TransPaintMosaic(const cAlphaDIBSection& surface, gdi::HDC dc, int32_t x, int32_t y,
                      std::span<const gdi::MosaicPart> parts, int32_t key) {
    KeyMerger merger(key);
    return KeyMerger::IsBound() && gdi::MergeMosaic(dc, x, y, {surface.hDC(), parts}, merger);
}

}  // namespace vxgui
