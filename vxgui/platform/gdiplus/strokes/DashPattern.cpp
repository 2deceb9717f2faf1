#include "vxgui/platform/gdiplus/strokes/DashPattern.h"

#include <algorithm>
#include <numeric>

namespace vxgui::gdiplus {

DashPattern::DashPattern(const PenSettings& pen, double width)
    : lengths_(pen.dashes.begin(), pen.dashes.end()), offset_(pen.dashOffset * width) {
    if (lengths_.size() % 2) lengths_.insert(lengths_.end(), pen.dashes.begin(), pen.dashes.end());
    for (double& length : lengths_) length *= width;
    total_ = std::accumulate(lengths_.begin(), lengths_.end(), 0.0);
    offset_ = std::fmod(offset_, total_);
    if (offset_ < 0) offset_ += total_;
}

std::vector<Stretch> DashPattern::Within(const Stretch& whole) const {
    if (!IsSensible(whole)) return {whole};
    std::vector<Stretch> result;
    double at = whole.from - offset_;
    for (size_t i = 0; at < whole.to; i = (i + 1) % lengths_.size()) {
        const double next = at + lengths_[i];
        if (i % 2 == 0 && next > whole.from) {
            result.push_back({std::max(at, whole.from), std::min(next, whole.to)});
        }
        at = next;
    }
    return result;
}

/// False for no dashes at all, and for so many that they'd show as a solid line.
bool DashPattern::IsSensible(const Stretch& whole) const {
    constexpr double kMost = 1e6;
    const double rounds = (whole.to - whole.from) / total_;
    return total_ > 0 && std::isfinite(offset_) &&
           rounds * static_cast<double>(lengths_.size()) < kMost;
}

}  // namespace vxgui::gdiplus
