#pragma once

#include "vxgui/text/TextStyles.h"
#include "vxgui/theme/Palette.h"
#include "vxgui/theme/ThemeItems.h"
#include "vxgui/theme/ThemeOwner.h"

namespace vxgui {

/// A whole theme: items, and pools of fonts, text styles and colours that many items share. A
/// host fills it through these operations, or from a define file by the command "LoadThemeSet" of
/// the global object.
class VXGUI_API ThemeSet : public ThemeOwner {
public:
    ThemeSet();

    Ref<vxgui::ThemeItems> ThemeItems() const { return items_; }
    void ThemeItems(const Ref<vxgui::ThemeItems>& value) { items_ = value; }
    Ref<LFonts> Fonts() const { return fonts_; }
    void Fonts(const Ref<LFonts>& value) { fonts_ = value; }
    Ref<vxgui::TextStyles> TextStyles() const { return styles_; }
    void TextStyles(const Ref<vxgui::TextStyles>& value) { styles_ = value; }

    /// -1 past the palette's end; raises error 9 before the first `AddColour`.
    int32_t Colour(int32_t Index) override { return palette_.Colour(Index); }
    /// The number of the colour; a value stands in the palette once.
    int32_t AddColour(int32_t Colour) { return palette_.Add(Colour); }
    /// The font that `AddFont` numbered `Index`. On a set without a pool it makes one.
    Ref<LFont> Font(int32_t Index) override;
    /// The new font's number, from 1.
    int32_t AddFont(const Ref<LFont>& ft);
    Ref<ThemeItem> Item(const String& ItemName) const;
    Ref<ThemeItem> Item(int32_t Index) const;
    void Item(const String& ItemName, const Ref<ThemeItem>& value);
    /// The set with each item as `ThemeItem::Scaled` makes it, under the same keys; fonts and
    /// styles that items shared are shared again. A copy that doesn't follow this set.
    Ref<ThemeSet> Scaled(double Factor);
    /// Lets go of items, fonts and styles. The palette stays.
    void Dispose();

    // For the library's own classes.
    VXGUI_LOCAL Palette& Colours() { return palette_; }

protected:
    ~ThemeSet() override;

private:
    Ref<vxgui::ThemeItems> items_;
    Ref<LFonts> fonts_;
    Ref<vxgui::TextStyles> styles_;
    Palette palette_;
};

/// Fills a set from a define file; pictures are looked for in `BasePath`. A count of 0 leaves the
/// pool that was there. A failure raises, and what was read so far stays. The result is 0.
VXGUI_LOCAL int32_t ThemeSetFromDefine(const Ref<ThemeSet>& set,
                                       const Ref<core7::DefineFile>& defineFile,
                                       const String& basePath);

/// A section's name: "Font_" and 9 give "Font_09", "Font_" and 100 give "Font_100".
VXGUI_LOCAL String NumberedSection(const char* prefix, int32_t number);

}  // namespace vxgui
