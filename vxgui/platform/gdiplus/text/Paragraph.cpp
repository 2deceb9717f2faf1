#include "vxgui/platform/gdiplus/text/Paragraph.h"

#include <algorithm>
#include <cmath>

#include "vxgui/platform/gdi/text/LogAttributes.h"

namespace vxgui::gdiplus {
namespace {

constexpr double kDefaultTab = 4;  // ems
// What sums of floats may be off, in parts of an em of usual size.
constexpr double kSlack = 1e-3;

}  // namespace

StringTabs::StringTabs(const FormatSettings& format, double em) : distance(kDefaultTab * em) {
    double at = format.firstTabOffset;
    for (const REAL stop : format.tabStops) stops.push_back(at += stop);
    if (!format.tabStops.empty()) distance = format.tabStops.back();
}

double StringTabs::After(double x) const {
    const auto stop = std::upper_bound(stops.begin(), stops.end(), x + kSlack);
    if (stop != stops.end()) return *stop;
    if (!(distance > 0)) return x;
    const double from = stops.empty() ? 0 : stops.back();
    return from + (std::floor((x - from + kSlack) / distance) + 1) * distance;
}

Paragraph::Paragraph(const StringFace& face, const StringTabs& tabs, std::u16string_view text)
    : tabs_(tabs), text_(text), pieces_(face.ShapeBetweenTabs(text)) {
    advances_.reserve(text.size() + 1);
    for (const ShapedString& piece : pieces_) {
        advances_.insert(advances_.end(), piece.advances.begin(), piece.advances.end());
        advances_.push_back(0);  // the tab's, or one behind the end
    }
}

const PangoLogAttr& Paragraph::PlaceOf(size_t unit) const {
    if (places_.empty()) places_ = gdi::LogAttributesOf(text_);
    return places_[unit];
}

double Paragraph::Advanced(double x, size_t unit) const {
    return text_[unit] == u'\t' ? tabs_.After(x) : x + advances_[unit];
}

double Paragraph::WidthOf(size_t first, size_t end) const {
    double x = 0;
    for (size_t unit = first; unit < end; ++unit) x = Advanced(x, unit);
    return x;
}

size_t Paragraph::WithoutSpaces(size_t first, size_t end) const {
    while (end > first && IsSpace(end - 1)) --end;
    return end;
}

size_t Paragraph::LastFitting(size_t first, size_t end, double width) const {
    size_t past = first;
    for (double x = 0; past < end; ++past) {
        x = Advanced(x, past);
        if (x > width + kSlack) break;
    }
    if (past == Size()) return past;  // a text's end may be cut at, whatever it holds
    while (past > first && !CanCut(past)) --past;
    return past;
}

size_t Paragraph::FirstFitting(size_t first, size_t end, double width) const {
    size_t fits = end;
    double x = 0;
    for (size_t unit = end; unit > first; --unit) {
        x += advances_[unit - 1];
        if (x > width + kSlack) break;
        if (CanCut(unit - 1)) fits = unit - 1;
    }
    return fits;
}

size_t Paragraph::WordEnd(size_t first, size_t at) const {
    for (size_t unit = at; unit > first; --unit) {
        const bool ends = unit == Size() || CanWrap(unit) || IsSpace(unit);
        if (ends && WithoutSpaces(first, unit) > first) return WithoutSpaces(first, unit);
    }
    return first;
}

}  // namespace vxgui::gdiplus
