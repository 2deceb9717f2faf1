#include "tools/vxgui/html/ItemFacts.h"

#include <cstdio>

namespace vxgui::tool {
namespace {

std::string Decimal(int32_t number) { return std::to_string(number); }

std::string Factor(double scale) {
    char text[32];
    std::snprintf(text, sizeof text, "%g×", scale);
    return text;
}

std::string StripText(const cAlphaDIBSection& strip, int32_t frames, bool vertical) {
    if (frames < 2) return "1 frame of " + Decimal(strip.Width()) + "×" + Decimal(strip.Height());
    const int32_t width = strip.Width() / (vertical ? 1 : frames);
    const int32_t height = strip.Height() / (vertical ? frames : 1);
    return Decimal(frames) + " frames of " + Decimal(width) + "×" + Decimal(height) +
           (vertical ? ", downwards" : ", side by side");
}

std::string ModeText(int32_t mode, uint8_t alpha) {
    const std::string name = mode == PerPixel ? "per pixel"
                             : mode == Trans  ? "colour key"
                                              : "opaque";
    return alpha == 255 ? name : name + ", alpha " + Decimal(alpha);
}

std::string SidesText(int32_t left, int32_t top, int32_t right, int32_t bottom) {
    return Decimal(left) + ", " + Decimal(top) + ", " + Decimal(right) + ", " + Decimal(bottom);
}

std::string CentreText(int32_t tile) {
    switch (tile) {
        case TileXTileY:
            return "centre tiled";
        case TileXStretchY:
            return "centre tiled across";
        case StretchXTileY:
            return "centre tiled down";
        case CopyXYFillRest:
            return "centre once, the rest filled";
        default:
            return "";
    }
}

// The pieces that aren't stretched.
std::string TilesText(const ThemeItem& item) {
    std::string text = CentreText(item.Tile()), edges;
    const auto add = [&](int32_t tiled, const char* name) {
        if (tiled) edges += (edges.empty() ? "" : ", ") + std::string(name);
    };
    add(item.TileLeft(), "left");
    add(item.TileTop(), "top");
    add(item.TileRight(), "right");
    add(item.TileBottom(), "bottom");
    if (!edges.empty()) text += (text.empty() ? "edges tiled: " : "; edges tiled: ") + edges;
    return text;
}

std::string ScalesText(const std::vector<StripAtScale>& strips) {
    std::string text;
    for (const StripAtScale& at : strips) text += (text.empty() ? "" : ", ") + Factor(at.scale);
    return text;
}

/// Leaves out what there is nothing to say of.
class Facts {
public:
    void Add(const char* term, const std::string& value) {
        if (!value.empty()) list.push_back({term, value});
    }
    void AddImage(const ThemeItem& item) {
        if (!item.Image()) return;
        Add("Image", StripText(*item.Image(), item.FrameCount(), item.FrameVert()));
        Add("Pixels", ModeText(item.TransMode(), item.ImageAlpha()));
        Add("Image margins", SidesText(item.ImageMarginLeft(), item.ImageMarginTop(),
                                       item.ImageMarginRight(), item.ImageMarginBottom()));
        Add("Tiling", TilesText(item));
        Add("Strips for", ScalesText(item.ImageStrips()));
    }
    void AddGlyph(ThemeItem& item) {
        if (!item.Glyph()) return;
        Add("Glyph", StripText(*item.Glyph(), item.GlyphFrames(), item.GlyphFrameVert()));
        Add("Its pixels", ModeText(item.GlyphTransMode(), item.GlyphAlpha()));
        Add("Its strips for", ScalesText(item.GlyphStrips()));
    }

    std::vector<ItemFact> list;
};

}  // namespace

std::vector<ItemFact> FactsOf(ThemeItem& item) {
    Facts facts;
    facts.AddImage(item);
    facts.AddGlyph(item);
    facts.Add("Content margins", SidesText(item.ContentLeft(), item.ContentTop(),
                                           item.ContentRight(), item.ContentBottom()));
    return facts.list;
}

}  // namespace vxgui::tool
