#include "vxgui/theme/ThemeItem.h"

namespace vxgui {
namespace {

bool SamePixels(const Ref<cAlphaDIBSection>& a, const Ref<cAlphaDIBSection>& b) {
    return a ? a->Equal(b) : !b;
}

}  // namespace

bool ThemeItem::Equal(const Ref<ThemeItem>& Item) {
    const KeepAlive keep(this);
    const Ref<ThemeItem> other = Item;
    if (!other || !EqualsInImage(*other) || !EqualsInGlyph(*other) || !EqualsInIcon(*other)) {
        return false;
    }
    for (int32_t state = E_ItemStateNormal; state <= E_ItemStateGroup; ++state) {
        if (!EqualsInState(*other, state)) return false;
    }
    return true;
}

bool ThemeItem::EqualsInImage(const ThemeItem& other) const {
    return SamePixels(image_, other.image_) && contentMargin_ == other.contentMargin_ &&
           imageMargin_ == other.imageMargin_ && backgroundEffect_ == other.backgroundEffect_ &&
           imageFlags_ == other.imageFlags_ && imageAlpha_ == other.imageAlpha_ &&
           frameCount_ == other.frameCount_ && frames_.order == other.frames_.order;
}

bool ThemeItem::EqualsInGlyph(ThemeItem& other) {
    return SamePixels(glyph_, other.glyph_) && GlyphFrames() == other.GlyphFrames() &&
           glyphAlpha_ == other.glyphAlpha_ && glyphAlign_ == other.glyphAlign_ &&
           glyphMargin_ == other.glyphMargin_;
}

bool ThemeItem::EqualsInIcon(const ThemeItem& other) const {
    // The glyph's place against the icon's, on purpose; this item's `IconAlign` isn't looked at.
    return glyphAlign_ == other.iconAlign_ && iconTransMode_ == other.iconTransMode_ &&
           iconWidth_ == other.iconWidth_ && iconHeight_ == other.iconHeight_ &&
           iconMargin_ == other.iconMargin_;
}

bool ThemeItem::EqualsInState(const ThemeItem& other, int32_t state) const {
    return StateFrame(state) == other.StateFrame(state) &&
           GetStateFont(state)->Equal(other.GetStateFont(state)) &&
           GetStateTextStyle(state)->Equal(other.GetStateTextStyle(state));
}

}  // namespace vxgui
