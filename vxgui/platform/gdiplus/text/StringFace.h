#pragma once

#include <string_view>

#include "vxgui/platform/gdiplus/text/StringFormat.h"
#include "vxgui/platform/gdiplus/text/Typeface.h"

namespace vxgui::gdiplus {

/// A glyph where shaping put it; measures are in world coordinates.
struct StringGlyph {
    uint32_t index;  ///< in its face
    uint16_t face;   ///< number of the face in its typeface
    bool ink;        ///< false for what has a width and no shape
    int32_t unit;    ///< first 16-bit unit of its characters
    double advance;
    double dx, dy;  ///< from the pen, rightwards and downwards
};

/// A text of one line and without tabs, as glyphs in the order in which they are seen.
struct ShapedString {
    std::vector<StringGlyph> glyphs;
    /// Of each unit in the text's own order: that of the characters that were shaped together
    /// stands at the first of their units.
    std::vector<double> advances;
    double width = 0;
};

/// A typeface at a size, as a format wants its text shaped.
class StringFace {
public:
    StringFace(std::shared_ptr<Typeface> typeface, double em, const FormatSettings& format);
    ~StringFace();
    StringFace(const StringFace&) = delete;
    StringFace& operator=(const StringFace&) = delete;

    /// Neighbours don't change an advance: a text is as wide as its parts.
    ShapedString Shape(std::u16string_view text) const;
    /// The pieces of a text between its tabs: one more than there are tabs.
    std::vector<ShapedString> ShapeBetweenTabs(std::u16string_view text) const;

    Typeface& Face() const { return *typeface_; }
    const std::shared_ptr<Typeface>& SharedFace() const { return typeface_; }
    double Em() const { return em_; }
    double LineHeight() const { return typeface_->Metrics().LineSpacing(em_); }
    double Ascent() const { return typeface_->Metrics().Ascent(em_); }
    /// A measure of the typeface's own design, in world coordinates.
    double Design(int32_t units) const { return em_ * units / typeface_->Metrics().emHeight; }

private:
    StringGlyph GlyphOf(const PangoGlyphInfo& info, PangoFont* font, bool shapeless) const;

    const std::shared_ptr<Typeface> typeface_;
    const double em_;
    const bool rightToLeft_;
    PangoAttrList* const attributes_;
};

}  // namespace vxgui::gdiplus
