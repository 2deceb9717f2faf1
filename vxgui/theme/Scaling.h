#pragma once

#include <map>

#include "vxgui/text/LFonts.h"
#include "vxgui/text/TextStyles.h"
#include "vxgui/theme/Margin.h"
#include "vxgui/theme/ThemeOwner.h"

namespace vxgui {

/// Makes things at a factor. What several items share is made once and shared again.
class VXGUI_LOCAL Scaling {
public:
    /// Raises for a factor outside 1/4 to 16.
    explicit Scaling(double factor);

    double Factor() const { return factor_; }
    int32_t Of(int32_t length) const;
    Margin Of(const Margin& margin) const;
    // None gives none.
    Ref<LFont> Of(const Ref<LFont>& font);
    Ref<TextStyle> Of(const Ref<TextStyle>& style);
    Ref<LFonts> Of(const Ref<LFonts>& fonts);
    Ref<TextStyles> Of(const Ref<TextStyles>& styles);
    /// One that answers the other's colours, and its fonts at the factor.
    Ref<ThemeOwner> Of(const Ref<ThemeOwner>& owner);
    /// From now on `scaled` stands for `owner`.
    void Know(const Ref<ThemeOwner>& owner, const Ref<ThemeOwner>& scaled);

private:
    /// What was scaled is kept with it: otherwise another object could get its address.
    template <class T>
    struct Pair {
        Ref<T> original;
        Ref<T> scaled;
    };
    template <class T>
    using Made = std::map<const T*, Pair<T>>;

    double factor_;
    Made<LFont> fonts_;
    Made<TextStyle> styles_;
    Made<ThemeOwner> owners_;
};

}  // namespace vxgui
