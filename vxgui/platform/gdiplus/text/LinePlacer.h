#pragma once

#include "vxgui/platform/gdiplus/text/LineGlyphs.h"
#include "vxgui/platform/gdiplus/text/StringLayout.h"

namespace vxgui::gdiplus {

/// Takes the lines of a string one after another and puts them into the layout rectangle.
class LinePlacer {
public:
    LinePlacer(const StringFace& face, const LayoutRequest& request);

    /// The width that lines are broken to; infinite for no bound.
    double LineWidth() const { return lineWidth_; }
    bool HasRoom() const { return lines_.size() < mostLines_; }
    /// Whether the next line is the last that has room.
    bool OnLastLine() const { return lines_.size() + 1 == mostLines_; }
    bool RightToLeft() const { return rightToLeft_; }
    void Add(LineGlyphs line) { lines_.push_back(std::move(line)); }
    StringLayout Finish() const;

private:
    /// A place in lines that run from left to right and top to bottom, whatever the format.
    struct LinePlace {
        double x, top;
    };

    size_t MostLines() const;
    double Aligned(StringAlignment alignment, double room, double size) const;
    LinePlace PlaceOf(size_t number) const;
    GpPointF Point(const LinePlace& line, double x, double below) const;
    GpRectF Box(const LinePlace& line, double x, double below, double width, double height) const;
    void PlaceGlyphs(size_t number, StringLayout& layout) const;
    void PlaceBars(size_t number, StringLayout& layout) const;
    GpRectF Bounds() const;

    const StringFace& face_;
    const FormatSettings& format_;
    const INT style_;
    const bool vertical_;
    const bool rightToLeft_;       ///< of the text in a line
    const double width_, height_;  ///< of the room along and across lines; 0 for no bound
    const double padding_;
    const double lineWidth_;
    const double lineHeight_;
    const size_t mostLines_;
    std::vector<LineGlyphs> lines_;
};

}  // namespace vxgui::gdiplus
