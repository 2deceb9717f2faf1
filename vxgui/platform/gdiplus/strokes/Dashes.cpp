#include <algorithm>

#include "vxgui/platform/gdiplus/strokes/Caps.h"
#include "vxgui/platform/gdiplus/strokes/DashPattern.h"
#include "vxgui/platform/gdiplus/strokes/Ruler.h"

namespace vxgui::gdiplus {
namespace {

Vec Outward(const Line& line, bool atStart) {
    const auto& c = line.corners;
    if (c.size() < 2) return {};
    return atStart ? (c[0].at - c[1].at).Unit() : (c.back().at - c[c.size() - 2].at).Unit();
}

/// Cuts one line into dashes and puts caps on all ends.
class Cutter {
public:
    Cutter(const Line& line, const PenSettings& pen, double width, DashedLine& out)
        : line_(line), pen_(pen), width_(width), ruler_(line), out_(out) {}

    void Cut() {
        whole_ = {0, ruler_.Length()};
        if (!line_.closed) TakeArrows();
        if (whole_.from >= whole_.to) return;
        const std::vector<Stretch> dashes = DashPattern(pen_, width_).Within(whole_);
        if (dashes.empty()) return;
        const bool full = dashes.front().from == whole_.from && dashes.back().to == whole_.to;
        if (line_.closed && full && dashes.size() == 1) {
            out_.dashes.push_back(line_);
            return;
        }
        endsAreWhole_ = full || !line_.closed;
        for (const Stretch& dash : dashes) AddDash(dash);
        if (line_.closed && full) JoinEnds();
    }

private:
    /// An arrow's tip is where the line ends; the line itself ends at its base.
    void TakeArrows() {
        const double base = std::min(LengthOfArrow(width_), ruler_.Length());
        if (pen_.startCap == LineCapArrowAnchor) {
            whole_.from = base;
            PlaceArrow(0, base, true);
        }
        if (pen_.endCap == LineCapArrowAnchor) {
            whole_.to = ruler_.Length() - base;
            PlaceArrow(ruler_.Length(), whole_.to, false);
        }
    }
    void PlaceArrow(double tip, double base, bool atStart) {
        const Vec at = ruler_.At(tip);
        out_.caps.push_back({LineCapArrowAnchor, at, (at - ruler_.At(base)).Unit(), atStart});
    }

    bool StartsLine(const Stretch& dash) const { return endsAreWhole_ && dash.from == whole_.from; }
    bool EndsLine(const Stretch& dash) const { return endsAreWhole_ && dash.to == whole_.to; }

    /// Round and pointed caps of dashes lie within the length of the dash.
    Stretch WithoutCaps(Stretch dash) const {
        if (pen_.dashCap == DashCapFlat) return dash;
        const double middle = (dash.from + dash.to) / 2;
        const double least = width_ * 1e-4;  // so that it has a direction
        const bool starts = StartsLine(dash), ends = EndsLine(dash);
        if (!starts) dash.from = std::min(dash.from + width_ / 2, middle - least);
        if (!ends) dash.to = std::max(dash.to - width_ / 2, middle + least);
        return dash;
    }

    void AddDash(const Stretch& dash) {
        const LineCap dashCap = static_cast<LineCap>(pen_.dashCap);
        Line line = ruler_.Cut(WithoutCaps(dash));
        AddCap(StartsLine(dash) ? pen_.startCap : dashCap, line, true);
        AddCap(EndsLine(dash) ? pen_.endCap : dashCap, line, false);
        out_.dashes.push_back(std::move(line));
    }
    void AddCap(LineCap cap, const Line& dash, bool atStart) {
        if (cap == LineCapArrowAnchor) cap = LineCapFlat;  // has been placed
        const Vec at = atStart ? dash.corners.front().at : dash.corners.back().at;
        out_.caps.push_back({cap, at, Outward(dash, atStart), atStart});
    }

    /// The last dash of a closed line runs on into the first.
    void JoinEnds() {
        const Line first = out_.dashes.front();
        Line& last = out_.dashes.back();
        last.corners.insert(last.corners.end(), first.corners.begin() + 1, first.corners.end());
        out_.dashes.erase(out_.dashes.begin());
        out_.caps.erase(out_.caps.begin());
        out_.caps.pop_back();
    }

    const Line& line_;
    const PenSettings& pen_;
    double width_;
    Ruler ruler_;
    DashedLine& out_;
    Stretch whole_{};
    bool endsAreWhole_ = true;  // what reaches the ends of `whole_` ends there as the line does
};

}  // namespace

DashedLine Dashed(const Line& line, const PenSettings& pen, double width) {
    DashedLine result;
    if (line.corners.size() < 2) {  // a dot
        const Vec at = line.corners.front().at;
        result.caps = {{pen.startCap, at, {-1, 0}, true}, {pen.endCap, at, {1, 0}, false}};
    } else {
        Cutter(line, pen, width, result).Cut();
    }
    return result;
}

}  // namespace vxgui::gdiplus
