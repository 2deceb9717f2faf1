#include "vxgui/theme/lint/NearestName.h"

#include <algorithm>
#include <array>

namespace vxgui::lint {
namespace {

// Longer names are no slip of a known one, and a file may hold a line of any length.
constexpr size_t kLongestName = 64;

// Short names are near to too many others.
size_t LimitFor(const String& name) { return std::min<size_t>(1 + name.size() / 5, 3); }

using Row = std::array<size_t, kLongestName + 1>;

}  // namespace

size_t DistanceOf(const String& a, const String& b) {
    const String from = a.Lower(), to = b.Lower();
    if (from.size() > kLongestName || to.size() > kLongestName) return kLongestName;
    Row before{}, last{}, row{};
    for (size_t j = 0; j <= to.size(); ++j) row[j] = j;
    for (size_t i = 1; i <= from.size(); ++i) {
        before = last;
        last = row;
        row[0] = i;
        for (size_t j = 1; j <= to.size(); ++j) {
            const size_t change = from[i - 1] == to[j - 1] ? 0 : 1;
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + change});
            const bool swapped =
                i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1];
            if (swapped) row[j] = std::min(row[j], before[j - 2] + 1);
        }
    }
    return row[to.size()];
}

String NearestName(const String& name, const std::vector<String>& candidates) {
    String nearest;
    size_t least = LimitFor(name) + 1;
    for (const String& candidate : candidates) {
        const size_t distance = DistanceOf(name, candidate);
        if (distance >= least) continue;
        least = distance;
        nearest = candidate;
    }
    return nearest;
}

}  // namespace vxgui::lint
