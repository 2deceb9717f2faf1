#include "vxgui/base/OutOfMemory.h"
#include "vxgui/base/Require.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui {

Ref<ThemeItem> ThemeItem::Clone() try {
    const KeepAlive keep(this);
    const Ref<ole::PropertyBag> bag = New<ole::PropertyBag>();
    WriteProperties(bag);
    Ref<ThemeItem> copy = New<ThemeItem>();
    copy->ReadProperties(bag);
    return copy;
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("ThemeItem.Clone");
}

Variant ThemeItem::CopyTo(const Ref<ThemeItem>& Value, uint32_t Flags) try {
    const KeepAlive keep(this);
    ThemeItem& to = Require(Value, "ThemeItem.CopyTo");
    const KeepAlive keepTarget(&to);
    const uint32_t fonts = Flags & COPYTO_FontsMask, styles = Flags & COPYTO_TextStylesMask;
    if (Flags & COPYTO_Image) to.Image(image_), to.imageScales_ = imageScales_;
    if (Flags & COPYTO_ImageProp) CopyImageProperties(to);
    if (Flags & COPYTO_ImageMargin) to.imageMargin_ = imageMargin_, to.iconMargin_ = iconMargin_;
    if (Flags & COPYTO_Glyph) to.Glyph(glyph_), to.glyphScales_ = glyphScales_;
    if (Flags & COPYTO_GlyphProp) CopyGlyphProperties(to);
    if (Flags & COPYTO_ContentMargin) to.contentMargin_ = contentMargin_;
    // Both ways at once are neither.
    if (fonts == COPYTO_FontsLet) to.LetFonts(Fonts());
    if (fonts == COPYTO_FontsSet) to.Fonts(Fonts());
    if (styles == COPYTO_TextStylesLet) to.LetTextStyles(TextStyles());
    if (styles == COPYTO_TextStylesSet) to.TextStyles(TextStyles());
    return {};
} catch (const std::bad_alloc&) {
    RaiseOutOfMemory("ThemeItem.CopyTo");
}

// Through the setters and their rules: an order of the item's own comes without its table.
void ThemeItem::CopyImageProperties(ThemeItem& to) const {
    to.BackgroundEffect(backgroundEffect_);
    to.FrameCount(frameCount_);
    to.FrameVert(FrameVert());
    to.ImageAlpha(imageAlpha_);
    to.TransMode(TransMode());
    to.FrameOrder(frames_.order);
    to.SetTile(Tile(), TileLeft(), TileTop(), TileRight(), TileBottom());
    to.IconAlign(iconAlign_);
    to.IconTransMode(iconTransMode_);
    to.IconWidth(iconWidth_);
    to.IconHeight(iconHeight_);
}

// Without the alpha and the direction, which have always stayed behind.
void ThemeItem::CopyGlyphProperties(ThemeItem& to) {
    to.GlyphFrames(GlyphFrames());
    to.GlyphTransMode(GlyphTransMode());
    to.GlyphAlign(glyphAlign_);
    to.glyphMargin_ = glyphMargin_;
}

}  // namespace vxgui
