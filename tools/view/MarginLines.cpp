#include "tools/view/MarginLines.h"

#include "vxgui/theme/NineSlice.h"

namespace vxgui::view {
namespace {

using Kind = MarginLine::Kind;

void AddSlices(std::vector<MarginLine>& lines, bool vertical, int32_t size, int32_t frame,
               int32_t near, int32_t far) {
    if (frame < 1) return;
    const SlicedAxis axis = SliceAxis({0, size}, {0, frame}, near, far);
    if (near > 0)
        lines.push_back({Kind::Slice, vertical, axis.near.target.start + axis.near.target.size});
    if (far > 0) lines.push_back({Kind::Slice, vertical, axis.far.target.start});
}

void AddContent(std::vector<MarginLine>& lines, bool vertical, int32_t size, int32_t near,
                int32_t far) {
    if (near == 0 && far == 0) return;
    lines.push_back({Kind::Content, vertical, near});
    lines.push_back({Kind::Content, vertical, size - far});
}

}  // namespace

std::vector<MarginLine> MarginLinesOf(const ThemeItem& item, gdi::SIZE size) {
    std::vector<MarginLine> lines;
    if (item.Image()) {
        AddSlices(lines, true, size.cx, item.ImageWidth(), item.ImageMarginLeft(),
                  item.ImageMarginRight());
        AddSlices(lines, false, size.cy, item.ImageHeight(), item.ImageMarginTop(),
                  item.ImageMarginBottom());
    }
    AddContent(lines, true, size.cx, item.ContentLeft(), item.ContentRight());
    AddContent(lines, false, size.cy, item.ContentTop(), item.ContentBottom());
    return lines;
}

}  // namespace vxgui::view
