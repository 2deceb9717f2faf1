#include "tools/vxgui/TransparentSheet.h"

#include "tools/vxgui/StraightPixel.h"

namespace vxgui::tool {

void PaintTransparent(Sheet& sheet, const std::function<void(Sheet&)>& paint) {
    Sheet white(sheet.width(), sheet.height());
    sheet.Fill(0xFF000000);
    white.Fill(0xFFFFFFFF);
    paint(sheet);
    paint(white);
    for (int32_t y = 0; y < sheet.height(); ++y)
        for (int32_t x = 0; x < sheet.width(); ++x)
            sheet.At(x, y) = StraightPixelOf(sheet.At(x, y), white.At(x, y));
}

}  // namespace vxgui::tool
