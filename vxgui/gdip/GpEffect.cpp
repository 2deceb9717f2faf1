#include "vxgui/gdip/GpEffect.h"

#include <cstring>

#include "vxgui/platform/ole_guid.h"

namespace vxgui {
namespace {

constexpr const char* kIdentifiers[] = {
    "{633C80A4-1843-482b-9EF2-BE2834C5FDD4}", "{63CBF3EE-C526-402c-8F71-62C540BF5142}",
    "{718F2615-7933-40e3-A511-5F68FE14DD74}", "{A7CE72A9-0F7F-40d7-B3CC-D0C02D5C3212}",
    "{D3A1DBE1-8EC4-4c17-9F4C-EA97AD1C343D}", "{8B2DD6C3-EB07-4d87-A5F0-7108E26A9C5F}",
    "{99C354EC-2A31-4f3a-8C34-17A803B33A25}", "{1077AF00-2848-4441-9489-44AD4C2D7A2C}",
    "{537E597D-251E-48da-9664-29CA496B70F8}", "{74D29D05-69A4-4266-9549-3CC52836B632}",
    "{DD6A0022-58E4-4a67-9D9B-D48EB881A53D}",
};

// All bytes 0 for what is no effect; the flat function refuses that.
gdiplus::GUID IdentifierOf(GpEffectType effect) {
    ole::GuidBytes bytes{};
    const auto index = static_cast<uint32_t>(effect);
    if (index < std::size(kIdentifiers)) ole::IIDFromString(kIdentifiers[index], &bytes);
    gdiplus::GUID guid;
    std::memcpy(&guid, bytes.data(), sizeof guid);
    return guid;
}

}  // namespace

void GpEffect::Handle(gdiplus::CGpEffect* value) {
    if (handle_) flat::GdipDeleteEffect(handle_);
    handle_ = value;
}

gdiplus::CGpEffect* GpEffect::Create(GpEffectType Effect) {
    gdiplus::CGpEffect* made = nullptr;
    if (flat::GdipCreateEffect(IdentifierOf(Effect), &made) != gdiplus::Ok) return nullptr;
    Handle(made);
    return made;
}

gdiplus::Status GpEffect::GetParameterSize(uint32_t& SIZE) {
    SIZE = 0;
    return flat::GdipGetEffectParameterSize(handle_, &SIZE);
}

gdiplus::Status GpEffect::GetParameters(void* lpParams, uint32_t& SIZE) {
    return flat::GdipGetEffectParameters(handle_, &SIZE, lpParams);
}

gdiplus::Status GpEffect::SetParameters(const void* lpParams, uint32_t SIZE) {
    return flat::GdipSetEffectParameters(handle_, lpParams, SIZE);
}

}  // namespace vxgui
