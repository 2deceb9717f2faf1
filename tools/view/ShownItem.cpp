#include "tools/view/ShownItem.h"

#include "tools/vxgui/StraightPixel.h"

namespace vxgui::view {

void PaintShown(tool::Sheet& sheet, const ShownItem& shown, gdi::POINT at) {
    if (!shown.item) return;
    shown.item->State(shown.state);
    shown.item->DrawBackground(sheet.dc(), at.x, at.y, shown.size.cx, shown.size.cy, -1, -1);
    if (shown.caption.empty()) return;
    int32_t right = at.x + shown.size.cx, bottom = at.y + shown.size.cy;
    shown.item->DrawText(sheet.dc(), shown.caption, DT_SINGLELINE, -1, at.x, at.y, right, bottom);
}

void PaintStraight(tool::Sheet& sheet, const ShownItem& shown) {
    tool::Sheet white(sheet.width(), sheet.height());
    sheet.Fill(0xFF000000);
    white.Fill(0xFFFFFFFF);
    for (tool::Sheet* each : {&sheet, &white}) PaintShown(*each, shown, {0, 0});
    for (int32_t y = 0; y < sheet.height(); ++y) {
        for (int32_t x = 0; x < sheet.width(); ++x)
            sheet.At(x, y) = tool::StraightPixelOf(sheet.At(x, y), white.At(x, y));
    }
}

}  // namespace vxgui::view
