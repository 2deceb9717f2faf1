#pragma once

#include "vxgui/text/TextStyle.h"
#include "vxgui/theme/ThemeItem.h"

/// The fields of each kind of object that a compiled skin keeps, with their names in the file.
/// `visit(name, field)` is called for each, for writing and reading alike.
namespace vxgui::compiled {

template <class Font, class Visit>
void ForEachFontField(Font& font, Visit visit) {
    visit("Name", font.Name);
    visit("Height", font.Height);
    visit("Width", font.Width);
    visit("Escapement", font.Escapement);
    visit("Orientation", font.Orientation);
    visit("Weight", font.Weight);
    visit("Italic", font.Italic);
    visit("Underline", font.Underline);
    visit("StrikeOut", font.StrikeOut);
    visit("CharSet", font.CharSet);
    visit("OutPrecision", font.OutPrecision);
    visit("ClipPrecision", font.ClipPrecision);
    visit("Quality", font.Quality);
    visit("PitchAndFamily", font.PitchAndFamily);
}

template <class Style, class Visit>
void ForEachStyleField(Style& style, Visit visit) {
    visit("TextColor", style.TextColor);
    visit("TextContrast", style.TextContrast);
    visit("TextStyle", style.TextStyle);
    visit("TextAlignHorz", style.TextAlignHorz);
    visit("TextAlignVert", style.TextAlignVert);
    visit("FormatFlags", style.FormatFlags);
    visit("ShadowColor", style.ShadowColor);
    visit("ShadowThickness", style.ShadowThickness);
    visit("ShadowX", style.ShadowX);
    visit("ShadowY", style.ShadowY);
    visit("ShadowOffsetX", style.ShadowOffsetX);
    visit("ShadowOffsetY", style.ShadowOffsetY);
}

/// The names of the states' fonts and styles.
constexpr const char* kStateFonts[E_ItemStateMax] = {"Font0", "Font1", "Font2", "Font3", "Font4",
                                                     "Font5", "Font6", "Font7", "Font8"};
constexpr const char* kStateStyles[E_ItemStateMax] = {"TextStyle0", "TextStyle1", "TextStyle2",
                                                      "TextStyle3", "TextStyle4", "TextStyle5",
                                                      "TextStyle6", "TextStyle7", "TextStyle8"};

/// Reaches past the item's setters, which would change what they store.
class VXGUI_LOCAL ItemFields {
public:
    template <class Item, class Visit>
    static void ForEach(Item& item, Visit visit) {
        visit("FrameCount", item.frameCount_);
        visit("FrameOrder", item.frames_.order);
        visit("StateFrames", item.frames_.frames);
        visit("ImageFlags", item.imageFlags_);
        visit("ImageAlpha", item.imageAlpha_);
        ForEachSide({"ImageMarginLeft", "ImageMarginTop", "ImageMarginRight", "ImageMarginBottom"},
                    item.imageMargin_, visit);
        ForEachSide(
            {"ContentMarginLeft", "ContentMarginTop", "ContentMarginRight", "ContentMarginBottom"},
            item.contentMargin_, visit);
        visit("GlyphFrames", item.glyphFrameCount_);
        visit("GlyphFrameOrder", item.glyphFrames_.order);
        visit("GlyphStateFrames", item.glyphFrames_.frames);
        visit("GlyphAlpha", item.glyphAlpha_);
        visit("GlyphAlign", item.glyphAlign_);
        ForEachSide({"GlyphMarginLeft", "GlyphMarginTop", "GlyphMarginRight", "GlyphMarginBottom"},
                    item.glyphMargin_, visit);
        visit("IconWidth", item.iconWidth_);
        visit("IconHeight", item.iconHeight_);
        visit("IconAlign", item.iconAlign_);
        visit("IconTransMode", item.iconTransMode_);
        ForEachSide({"IconMarginLeft", "IconMarginTop", "IconMarginRight", "IconMarginBottom"},
                    item.iconMargin_, visit);
        visit("BackgroundEffect", item.backgroundEffect_);
    }

private:
    using SideNames = const char* const (&)[4];

    template <class Sides, class Visit>
    static void ForEachSide(SideNames names, Sides& margin, Visit visit) {
        visit(names[0], margin.left);
        visit(names[1], margin.top);
        visit(names[2], margin.right);
        visit(names[3], margin.bottom);
    }
};

}  // namespace vxgui::compiled
