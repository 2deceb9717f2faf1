#include "vxgui/text/TextStyle.h"

#include <tuple>

namespace vxgui {

namespace {

/// What `Clone` copies and `Equal` compares, in the order of the comparison.
auto Fields(auto& style) {
    return std::tie(style.TextColor, style.TextContrast, style.TextStyle, style.TextAlignHorz,
                    style.TextAlignVert, style.ShadowColor, style.ShadowThickness, style.ShadowX,
                    style.ShadowY, style.ShadowOffsetX, style.ShadowOffsetY, style.FormatFlags);
}

}  // namespace

void TextStyle::Create(int32_t textColor, int32_t textAlignHorz, int32_t textAlignVert,
                       int32_t textStyle, int32_t textContrast, int32_t shadowColor,
                       int32_t shadowThickness, int32_t shadowX, int32_t shadowY,
                       int32_t shadowOffsetX, int32_t shadowOffsetY, int32_t formatFlags) {
    Fields(*this) =
        std::tie(textColor, textContrast, textStyle, textAlignHorz, textAlignVert, shadowColor,
                 shadowThickness, shadowX, shadowY, shadowOffsetX, shadowOffsetY, formatFlags);
}

Ref<class TextStyle> TextStyle::Clone() const {
    Ref<class TextStyle> copy = New<class TextStyle>();
    Fields(*copy) = Fields(*this);
    return copy;
}

bool TextStyle::Equal(const Ref<class TextStyle>& other) const {
    return other && Fields(*this) == Fields(*other);
}

}  // namespace vxgui
