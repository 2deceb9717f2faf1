#pragma once

#include <cstring>

#include "vxgui/platform/gdiplus/Effect.h"

namespace vxgui::gdiplus {

constexpr bool Within(int32_t value, int32_t low, int32_t high) {
    return value >= low && value <= high;
}

/// An effect whose parameters are one record of fixed size.
template <class Params>
class EffectOf : public Effect {
public:
    std::vector<BYTE> Parameters() const override {
        std::vector<BYTE> bytes(sizeof(Params));
        std::memcpy(bytes.data(), &params_, sizeof(Params));
        return bytes;
    }
    GpStatus Parameters(std::span<const BYTE> bytes) override {
        Params given;
        if (bytes.size() != sizeof given) return InvalidParameter;
        std::memcpy(&given, bytes.data(), sizeof given);
        if (!IsValid(given)) return InvalidParameter;
        params_ = given;
        return Ok;
    }

protected:
    explicit EffectOf(const Params& neutral) : params_(neutral) {}
    virtual bool IsValid(const Params& params) const = 0;

    Params params_;
};

/// An effect that replaces each channel by a table.
template <class Params>
class TableEffect : public EffectOf<Params> {
public:
    void Apply(EffectPicture& picture, const GpRect& area, GpPoint) const override {
        const ChannelTables tables = *this->Tables();
        for (INT y = area.Y; y < area.Y + area.Height; ++y) {
            LookUp(picture.Row(y).subspan(static_cast<size_t>(area.X),
                                          static_cast<size_t>(area.Width)),
                   tables);
        }
    }

protected:
    using EffectOf<Params>::EffectOf;
};

/// An effect that works pixel by pixel: `Derived` has `void Turn(std::span<ARGB>) const`.
template <class Derived, class Params>
class PixelEffect : public EffectOf<Params> {
public:
    void Apply(EffectPicture& picture, const GpRect& area, GpPoint) const override {
        for (INT y = area.Y; y < area.Y + area.Height; ++y) {
            static_cast<const Derived*>(this)->Turn(picture.Row(y).subspan(
                static_cast<size_t>(area.X), static_cast<size_t>(area.Width)));
        }
    }

protected:
    using EffectOf<Params>::EffectOf;
};

}  // namespace vxgui::gdiplus
