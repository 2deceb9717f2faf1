#include "vxgui/platform/gdi/StockObjects.h"

#include <array>

#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {
namespace {

Brush* MakeBrush(UINT style, COLORREF color) {
    return Permanently(std::make_unique<Brush>(LOGBRUSH{style, color, 0}));
}

Pen* MakePen(UINT style, COLORREF color) {
    return Permanently(std::make_unique<Pen>(LOGPEN{style, {0, 0}, color}));
}

Font* MakeFont(const char* face, LONG height, BYTE pitchAndFamily) {
    LOGFONTA record{};
    record.lfHeight = height;
    record.lfWeight = 400;
    record.lfPitchAndFamily = pitchAndFamily;
    std::strncpy(record.lfFaceName, face, sizeof(record.lfFaceName) - 1);
    return Permanently(std::make_unique<Font>(record));
}

Bitmap* MakeBitmap() {
    static uint8_t pixel[4];
    BitmapShape shape;
    shape.width = shape.height = 1;
    shape.depth = 1;
    shape.stride = 2;
    shape.shared = true;
    return Permanently(std::make_unique<Bitmap>(shape, PixelBlock{pixel, 4, false}));
}

}  // namespace

Brush* StockBrush(int index) {
    static const std::array<Brush*, 6> brushes = {
        MakeBrush(BS_SOLID, 0xFFFFFF), MakeBrush(BS_SOLID, 0xC0C0C0), MakeBrush(BS_SOLID, 0x808080),
        MakeBrush(BS_SOLID, 0x404040), MakeBrush(BS_SOLID, 0x000000), MakeBrush(BS_NULL, 0)};
    if (index < WHITE_BRUSH || index > NULL_BRUSH) return nullptr;
    return brushes[static_cast<size_t>(index - WHITE_BRUSH)];
}

Pen* StockPen(int index) {
    static const std::array<Pen*, 3> pens = {MakePen(PS_SOLID, 0xFFFFFF), MakePen(PS_SOLID, 0),
                                             MakePen(PS_NULL, 0)};
    if (index < WHITE_PEN || index > NULL_PEN) return nullptr;
    return pens[static_cast<size_t>(index - WHITE_PEN)];
}

Font* StockFont(int index) {
    static Font* const system = MakeFont("System", 16, 0x22);
    static Font* const gui = MakeFont("MS Shell Dlg", -11, 0x22);
    if (index == SYSTEM_FONT) return system;
    return index == DEFAULT_GUI_FONT ? gui : nullptr;
}

Bitmap* StockBitmap() {
    static Bitmap* const bitmap = MakeBitmap();
    return bitmap;
}

HGDIOBJ GetStockObject(int index) {
    if (const Brush* brush = StockBrush(index)) return brush->Handle();
    if (const Pen* pen = StockPen(index)) return pen->Handle();
    if (const Font* font = StockFont(index)) return font->Handle();
    return nullptr;
}

}  // namespace vxgui::gdi
