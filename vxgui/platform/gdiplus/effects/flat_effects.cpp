#include <cstdlib>
#include <cstring>

#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/effects/Effects.h"
#include "vxgui/platform/gdiplus_effects.h"

namespace vxgui::gdiplus {
namespace {

struct Kind {
    GUID guid;
    Ref<Effect> (*make)();
};

constexpr Kind kKinds[] = {
    {{0x633C80A4, 0x1843, 0x482b, {0x9E, 0xF2, 0xBE, 0x28, 0x34, 0xC5, 0xFD, 0xD4}}, MakeBlur},
    {{0x63CBF3EE, 0xC526, 0x402c, {0x8F, 0x71, 0x62, 0xC5, 0x40, 0xBF, 0x51, 0x42}}, MakeSharpen},
    {{0x718F2615, 0x7933, 0x40e3, {0xA5, 0x11, 0x5F, 0x68, 0xFE, 0x14, 0xDD, 0x74}},
     MakeColorMatrixEffect},
    {{0xA7CE72A9, 0x0F7F, 0x40d7, {0xB3, 0xCC, 0xD0, 0xC0, 0x2D, 0x5C, 0x32, 0x12}}, MakeColorLut},
    {{0xD3A1DBE1, 0x8EC4, 0x4c17, {0x9F, 0x4C, 0xEA, 0x97, 0xAD, 0x1C, 0x34, 0x3D}},
     MakeBrightnessContrast},
    {{0x8B2DD6C3, 0xEB07, 0x4d87, {0xA5, 0xF0, 0x71, 0x08, 0xE2, 0x6A, 0x9C, 0x5F}},
     MakeHueSaturationLightness},
    {{0x99C354EC, 0x2A31, 0x4f3a, {0x8C, 0x34, 0x17, 0xA8, 0x03, 0xB3, 0x3A, 0x25}}, MakeLevels},
    {{0x1077AF00, 0x2848, 0x4441, {0x94, 0x89, 0x44, 0xAD, 0x4C, 0x2D, 0x7A, 0x2C}}, MakeTint},
    {{0x537E597D, 0x251E, 0x48da, {0x96, 0x64, 0x29, 0xCA, 0x49, 0x6B, 0x70, 0xF8}},
     MakeColorBalance},
    {{0x74D29D05, 0x69A4, 0x4266, {0x95, 0x49, 0x3C, 0xC5, 0x28, 0x36, 0xB6, 0x32}},
     MakeRedEyeCorrection},
    {{0xDD6A0022, 0x58E4, 0x4a67, {0x9D, 0x9B, 0xD4, 0x8E, 0xB8, 0x81, 0xA5, 0x3D}},
     MakeColorCurve},
};

Ref<Effect> MakeEffect(const GUID& guid) {
    for (const Kind& kind : kKinds) {
        if (std::memcmp(&kind.guid, &guid, sizeof guid) == 0) return kind.make();
    }
    return nullptr;
}

}  // namespace

extern "C" {

void* GdipAlloc(size_t size) { return std::malloc(size); }

void GdipFree(void* memory) { std::free(memory); }

GpStatus GdipCreateEffect(GUID guid, CGpEffect** effect) {
    return FlatCreate(effect, [&] {
        Ref<Effect> made = MakeEffect(guid);
        return made ? HandOut(effect, std::move(made)) : InvalidParameter;
    });
}

GpStatus GdipDeleteEffect(CGpEffect* effect) { return FlatDelete<Effect>(effect); }

GpStatus GdipGetEffectParameterSize(CGpEffect* effect, UINT* size) {
    return FlatGet<Effect>(
        effect, size, [](Effect& found) { return static_cast<UINT>(found.Parameters().size()); });
}

GpStatus GdipSetEffectParameters(CGpEffect* effect, const void* params, UINT size) {
    if (!params) return InvalidParameter;
    return FlatOn<Effect>(effect, [&](Effect& found) {
        return found.Parameters({static_cast<const BYTE*>(params), size});
    });
}

GpStatus GdipGetEffectParameters(CGpEffect* effect, UINT* size, void* params) {
    if (!size || !params) return InvalidParameter;
    return FlatOn<Effect>(effect, [&](Effect& found) {
        const std::vector<BYTE> bytes = found.Parameters();
        const bool fits = *size >= bytes.size();
        if (fits) std::memcpy(params, bytes.data(), bytes.size());
        *size = static_cast<UINT>(bytes.size());
        return fits ? Ok : InsufficientBuffer;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
