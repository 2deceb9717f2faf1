#include "vxgui/platform/gdi/DeviceContext.h"

#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/StockObjects.h"

namespace vxgui::gdi {
namespace {

void SelectStock(DcState& state) {
    state.brush = Selection<Brush>(StockBrush(WHITE_BRUSH));
    state.pen = Selection<Pen>(StockPen(BLACK_PEN));
    state.font = Selection<Font>(StockFont(SYSTEM_FONT));
}

}  // namespace

DeviceContext::DeviceContext() : GdiObject(kKind), host_(false) {
    SelectStock(state);
    state.bitmap = Selection<Bitmap>(StockBitmap());
}

DeviceContext::DeviceContext(GdiRef<Bitmap> pixels) : GdiObject(kKind), host_(true) {
    SelectStock(state);
    state.bitmap = Selection<Bitmap>(std::move(pixels));
}

DeviceContext::~DeviceContext() = default;

PixelTarget DeviceContext::Target() const {
    PixelTarget target = state.bitmap->Target();
    if (!host_ && state.bitmap->Permanent()) target.top = ownPixel_;
    return target;
}

GdiRef<DeviceContext> FindContext(HDC dc) { return Find<DeviceContext>(dc); }

}  // namespace vxgui::gdi
