#pragma once

#include "vxgui/platform/gdiplus/text/StringFace.h"

namespace vxgui::gdiplus {

/// Where tabs lead, counted from the left of the line.
struct StringTabs {
    StringTabs(const FormatSettings& format, double em);
    /// The stop behind `x`.
    double After(double x) const;

    std::vector<double> stops;  ///< ascending
    double distance;            ///< of those behind the last
};

/// A paragraph that is being cut into lines: what its units measure, and where it may be cut.
class Paragraph {
public:
    Paragraph(const StringFace& face, const StringTabs& tabs, std::u16string_view text);

    std::u16string_view Text() const { return text_; }
    /// The whole as it was shaped between its tabs.
    const std::vector<ShapedString>& Pieces() const { return pieces_; }
    size_t Size() const { return text_.size(); }
    /// Where the pen stands behind a unit, when it stood at `x` before it.
    double Advanced(double x, size_t unit) const;
    double WidthOf(size_t first, size_t end) const;
    /// Whether a cursor may stand before a unit, so that the text may be cut there at need.
    bool CanCut(size_t unit) const { return PlaceOf(unit).is_cursor_position; }
    /// Whether a line may begin with a unit.
    bool CanWrap(size_t unit) const {
        return PlaceOf(unit).is_line_break || (unit > 0 && text_[unit - 1] == u'\t');
    }
    bool IsSpace(size_t unit) const { return text_[unit] == u' ' || text_[unit] == u'\t'; }
    /// `end` without the spaces before it, not below `first`.
    size_t WithoutSpaces(size_t first, size_t end) const;

    /// The last cut up to which units from `first` fit `width`; `first` when none does.
    size_t LastFitting(size_t first, size_t end, double width) const;
    /// The first cut from which units up to `end` fit `width`.
    size_t FirstFitting(size_t first, size_t end, double width) const;
    /// The last place from `first` up to `at` where a word ends; `first` when none does.
    size_t WordEnd(size_t first, size_t at) const;

private:
    const PangoLogAttr& PlaceOf(size_t unit) const;

    const StringTabs& tabs_;
    const std::u16string_view text_;
    const std::vector<ShapedString> pieces_;
    std::vector<double> advances_;
    mutable std::vector<PangoLogAttr> places_;  // found when first asked for: what fits isn't cut
};

}  // namespace vxgui::gdiplus
