#include "vxgui/theme/Scaling.h"

#include "vxgui/base/Error.h"
#include "vxgui/theme/ScaledLength.h"
#include "vxgui/theme/StripScales.h"

namespace vxgui {
namespace {

/// Stands between an item at a factor and the owner of the item that it was made from.
class ScaledOwner : public ThemeOwner {
public:
    ScaledOwner(const Ref<ThemeOwner>& owner, double factor) : owner_(owner), scaling_(factor) {}
    int32_t Colour(int32_t Index) override { return owner_->Colour(Index); }
    Ref<LFont> Font(int32_t Index) override { return scaling_.Of(owner_->Font(Index)); }

private:
    const Ref<ThemeOwner> owner_;
    Scaling scaling_;
};

// A font without a name draws with the platform's own, whatever its height says.
Ref<LFont> WithName(const Ref<LFont>& font) {
    if (!font->Name.empty()) return font->Clone();
    Ref<LFont> named = New<LFont>();
    named->DefaultGuiFont(font->Quality);
    return named;
}

// What `make` makes of an original, once.
template <class T, class Made, class Make>
Ref<T> Once(Made& made, const Ref<T>& original, Make make) {
    if (!original) return nullptr;
    const auto known = made.find(original.get());
    if (known != made.end()) return known->second.scaled;
    Ref<T> scaled = make();
    made[original.get()] = {original, scaled};
    return scaled;
}

template <class Pool>
Ref<Pool> PoolOf(const Ref<Pool>& pool, Scaling& scaling) {
    if (!pool) return nullptr;
    Ref<Pool> scaled = New<Pool>();
    for (int32_t n = 1; n <= pool->Count(); ++n)
        scaled->AddItem(scaling.Of(pool->Item(n)), pool->KeyOf(n));
    return scaled;
}

}  // namespace

Scaling::Scaling(double factor) : factor_(factor) {
    if (!(factor >= kSmallestScale && factor <= kLargestScale))
        throw Error(ErrorNumber::InvalidCall, "Scaling", "A scale from 1/4 to 16 was expected");
}

int32_t Scaling::Of(int32_t length) const { return ScaledLength(length, factor_); }

Margin Scaling::Of(const Margin& margin) const {
    return {Of(margin.left), Of(margin.top), Of(margin.right), Of(margin.bottom)};
}

Ref<LFont> Scaling::Of(const Ref<LFont>& font) {
    return Once(fonts_, font, [&] {
        Ref<LFont> scaled = factor_ == 1 ? font->Clone() : WithName(font);
        constexpr int32_t kDefaultHeight = 12;  // what a height of 0 stands for
        const bool standard = factor_ != 1 && scaled->Height == 0;
        scaled->Height = Of(standard ? kDefaultHeight : scaled->Height);
        scaled->Width = Of(scaled->Width);
        scaled->DrawingStyle = Of(font->DrawingStyle);
        return scaled;
    });
}

Ref<TextStyle> Scaling::Of(const Ref<TextStyle>& style) {
    return Once(styles_, style, [&] {
        Ref<TextStyle> scaled = style->Clone();
        for (int32_t TextStyle::*reach : {&TextStyle::ShadowX, &TextStyle::ShadowY,
                                          &TextStyle::ShadowOffsetX, &TextStyle::ShadowOffsetY})
            (*scaled).*reach = Of((*scaled).*reach);
        return scaled;
    });
}

Ref<LFonts> Scaling::Of(const Ref<LFonts>& fonts) { return PoolOf(fonts, *this); }
Ref<TextStyles> Scaling::Of(const Ref<TextStyles>& styles) { return PoolOf(styles, *this); }

Ref<ThemeOwner> Scaling::Of(const Ref<ThemeOwner>& owner) {
    return Once(owners_, owner, [&]() -> Ref<ThemeOwner> {
        return factor_ == 1 ? owner : Ref<ThemeOwner>(New<ScaledOwner>(owner, factor_));
    });
}

void Scaling::Know(const Ref<ThemeOwner>& owner, const Ref<ThemeOwner>& scaled) {
    owners_[owner.get()] = {owner, scaled};
}

}  // namespace vxgui
