#include <cstdio>
#include <map>

#include "tools/vxgui/html/HtmlLooks.h"
#include "vxgui/colour/modColours.h"

namespace vxgui::tool {
namespace {

using kainjow::mustache::data;

std::string Css(int32_t colour) {
    const int32_t plain = TranslateOleColor(colour);
    char text[16];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", RedOf(plain), GreenOf(plain), BlueOf(plain));
    return text;
}

/// Colours by their names, in the order in which they are first met.
class Swatches {
public:
    void Add(const std::string& name, int32_t colour) {
        data swatch;
        swatch.set("name", name);
        swatch.set("css", Css(colour));
        list_ << swatch;
    }
    void AddPalette(const std::vector<int32_t>& colours) {
        for (size_t n = 0; n < colours.size(); ++n) Add("Colour " + std::to_string(n), colours[n]);
    }
    void AddStyle(const std::string& name, const TextStyle& style) {
        Add(name + " text", style.TextColor);
        if (style.TextStyle > TextStyleNormal) Add(name + " shadow", style.ShadowColor);
    }
    data List() const { return list_; }

private:
    data list_{data::type::list};
};

void AddSet(Swatches& swatches, ThemeSet& set) {
    swatches.AddPalette(set.Colours().All());
    const Ref<TextStyles> styles = set.TextStyles();
    for (int32_t n = 1; styles && n <= styles->Count(); ++n)
        swatches.AddStyle("Style " + std::to_string(n), *styles->Item(n));
}

// The file says how many there are, since a palette has no end.
void AddDesktop(Swatches& swatches, core7::DefineFile& file, SkinDef& skin) {
    std::vector<int32_t> colours;
    while (file.PositionOf("Colour" + String::FromInt(int64_t(colours.size()))).line > 0)
        colours.push_back(skin.Colour(static_cast<int32_t>(colours.size())));
    swatches.AddPalette(colours);
    for (const String& name : file.KeyNames("Colours"))
        swatches.Add(name.Utf8(), skin.SysColour(name));
}

}  // namespace

data HtmlColours(const Skin& skin) {
    Swatches swatches;
    if (skin.set) AddSet(swatches, *skin.set);
    if (skin.desktop) AddDesktop(swatches, *skin.file, *skin.desktop);
    return swatches.List();
}

}  // namespace vxgui::tool
