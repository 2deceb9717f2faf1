#pragma once

#include <memory>

#include "vxgui/platform/gdi/text/DrawTextOptions.h"
#include "vxgui/platform/gdi/text/TextLine.h"
#include "vxgui/platform/gdi/text/WrapPlaces.h"

namespace vxgui::gdi {

/// One line of a text: the units [first, end).
struct LineRange {
    size_t first = 0;
    size_t end = 0;
    size_t paragraphEnd = 0;  ///< of the paragraph that the line stands in
};

/// Cuts a text into its lines, one after another.
class DrawTextLines {
public:
    /// Lines are wrapped to `width` where the options say so.
    DrawTextLines(const TextSetup& setup, const DrawTextOptions& options, std::u16string_view text,
                  int64_t width);

    /// False at the end of the text.
    bool Next(LineRange* line);
    /// True when no line is left.
    bool AtEnd() const { return at_ >= text_.size() && !fresh_; }
    /// Leaves out what is left.
    void Stop();
    /// The width of the line that `Next` gave last.
    int64_t WidthOf(const LineRange& line) const;
    /// A line as it is painted.
    TextLine Make(std::u16string_view line) const;

private:
    struct Place {
        size_t end;   ///< of a line that is wrapped here
        size_t next;  ///< where the following one begins
    };

    TabStops Stops() const;
    void EnterParagraph();
    void LeaveParagraph();
    Place WrapPlace() const;
    Place WholeWord(size_t from) const;
    bool CanWrap(size_t at, size_t lineStart, Place* place) const;
    int64_t Advanced(int64_t x, size_t unit) const;

    const TextSetup& setup_;
    const DrawTextOptions& options_;
    const std::u16string_view text_;
    const int64_t width_;
    size_t at_ = 0;
    bool fresh_;  // a single line is given even for no text at all
    // The paragraph that is being wrapped: its ends, and what its units measure.
    size_t paragraph_ = 0;
    size_t paragraphEnd_ = 0;
    bool inside_ = false;
    ShapedTextRef shaped_;
    std::unique_ptr<WrapPlaces> places_;
};

}  // namespace vxgui::gdi
