#include "vxgui/platform/gdi/RegionCost.h"

#include <algorithm>

#include "vxgui/platform/limits.h"

namespace vxgui::gdi {
namespace {

using Boxes = std::span<const pixman_box32_t>;

// Walks the bands of a region downwards.
class Bands {
public:
    explicit Bands(Boxes boxes) : rest_(boxes) { Enter(); }

    bool AtEnd() const { return rest_.empty(); }
    // The row in which something changes next: the band's top while it lies below `row`.
    int32_t NextChange(int32_t row) const {
        return row < rest_.front().y1 ? rest_.front().y1 : rest_.front().y2;
    }
    size_t CountAt(int32_t row) const { return !AtEnd() && row >= rest_.front().y1 ? count_ : 0; }
    void LeaveAbove(int32_t row) {
        if (AtEnd() || rest_.front().y2 > row) return;
        rest_ = rest_.subspan(count_);
        Enter();
    }

private:
    void Enter() {
        const auto end = std::ranges::find_if(
            rest_,
            [top = AtEnd() ? 0 : rest_.front().y1](const auto& box) { return box.y1 != top; });
        count_ = static_cast<size_t>(end - rest_.begin());
    }

    Boxes rest_;
    size_t count_ = 0;
};

}  // namespace

size_t MostBoxesOf(Boxes a, Boxes b) {
    size_t sum = 0;
    Bands first(a), second(b);
    for (int32_t row = INT32_MIN; !first.AtEnd() || !second.AtEnd();) {
        sum += first.CountAt(row) + second.CountAt(row);
        int32_t next = INT32_MAX;
        for (const Bands* bands : {&first, &second})
            if (!bands->AtEnd()) next = std::min(next, bands->NextChange(row));
        row = next;
        first.LeaveAbove(row);
        second.LeaveAbove(row);
    }
    return sum;
}

bool MayBeCombined(Boxes a, Boxes b) {
    const size_t most = ApartmentLimits().regionRectangles, together = a.size() + b.size();
    // Each band of one can be cut by every band of the other. Few are sure to fit.
    if (together <= most && together * together * 2 <= most) return true;
    return MostBoxesOf(a, b) <= most;
}

}  // namespace vxgui::gdi
