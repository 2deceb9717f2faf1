#include "vxgui/platform/gdi/text/Ellipsis.h"

#include <algorithm>

namespace vxgui::gdi {
namespace {

/// Left edges of a line's units, and its right edge; -1 inside of characters that belong together.
std::vector<int64_t> Edges(const TextLine& line, size_t units) {
    std::vector<int64_t> edges(units + 1, -1);
    for (const LinePart& part : line.parts) {
        int64_t x = part.x;
        for (size_t i = 0; i < part.shaped->advances.size(); ++i) {
            if (i == 0 || part.shaped->advances[i] != 0) edges[part.first + i] = x;
            x += part.shaped->advances[i];
        }
        edges[part.first + part.shaped->advances.size()] = x;
    }
    edges[0] = 0;
    edges[units] = line.width;
    return edges;
}

/// The last place up to `most` whose left edge is at most `room`; 0 if there is none.
size_t LastFitting(const std::vector<int64_t>& edges, size_t most, int64_t room) {
    for (size_t i = most; i > 0; --i) {
        if (edges[i] >= 0 && edges[i] <= room) return i;
    }
    return 0;
}

/// The first place from `least` from which the rest takes at most `room`.
size_t FirstFitting(const std::vector<int64_t>& edges, size_t least, int64_t room) {
    size_t i = least;
    while (i + 1 < edges.size() && (edges[i] < 0 || edges.back() - edges[i] > room)) ++i;
    return i;
}

/// The cut in a path: the part from the last separator on stays whole. Without a separator the
/// second half gives way from its front.
TextCut PathCut(std::u16string_view line, const std::vector<int64_t>& edges, int64_t room) {
    const size_t separator = line.find_last_of(u"\\/");
    const bool path = separator != std::u16string_view::npos;
    size_t tail = path ? separator : line.size() / 2;
    while (edges[tail] < 0) ++tail;
    if (!path) tail = FirstFitting(edges, tail, room);
    const int64_t tailWidth = edges.back() - edges[tail];
    return {LastFitting(edges, tail, room - tailWidth), tail};
}

/// Only so much of a long line can be seen; the rest need not be measured.
std::u16string_view Visible(const DrawTextLines& lines, std::u16string_view line, int64_t width) {
    constexpr size_t kEnough = 4096;
    size_t units = kEnough;
    while (units < line.size() && lines.Make(line.substr(0, units)).width <= width) units *= 4;
    return line.substr(0, units);
}

TextCut EndCut(const DrawTextLines& lines, std::u16string_view line, int64_t room) {
    const std::u16string_view seen = Visible(lines, line, std::max<int64_t>(room, 0));
    const std::vector<int64_t> edges = Edges(lines.Make(seen), seen.size());
    return {LastFitting(edges, seen.size(), room), line.size()};
}

}  // namespace

std::u16string WithCuts(std::u16string_view line, const std::vector<TextCut>& cuts) {
    std::u16string result;
    size_t at = 0;
    for (const TextCut& cut : cuts) {
        result.append(line.substr(at, cut.from - at)).append(kDots);
        at = cut.to;
    }
    return result.append(line.substr(at));
}

size_t PlaceAfterCuts(size_t unit, const std::vector<TextCut>& cuts) {
    size_t place = unit;
    for (const TextCut& cut : cuts) {
        if (unit < cut.from) break;
        if (unit < cut.to) return std::u16string_view::npos;
        place = place - (cut.to - cut.from) + kDots.size();
    }
    return place;
}

std::vector<TextCut> FindCuts(const DrawTextLines& lines, const TextSetup& setup,
                              std::u16string_view line, int64_t width, const EllipsisWish& wish) {
    const std::u16string_view seen = Visible(lines, line, width);
    const bool fits = seen.size() == line.size() && lines.Make(line).width <= width;
    if (fits && !wish.force) return {};
    const int64_t room = width - setup.Shaped(kDots)->width;
    std::vector<TextCut> cuts;
    if (wish.path && !fits) {
        const std::vector<int64_t> edges = Edges(lines.Make(line), line.size());
        cuts.push_back(PathCut(line, edges, room));
        const bool enough = lines.Make(WithCuts(line, cuts)).width <= width;
        if (enough || !wish.end) return cuts;
        // The name alone is too long: it is cut at its end as well.
        const TextCut path = cuts[0];
        const std::u16string_view name = line.substr(path.to);
        const TextCut end = EndCut(lines, name, room - setup.Shaped(kDots)->width);
        cuts.push_back({path.to + end.from, line.size()});
        return cuts;
    }
    cuts.push_back(EndCut(lines, line, room));
    return cuts;
}

}  // namespace vxgui::gdi
