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
    pixels->Claim(this);
    state.bitmap = Selection<Bitmap>(std::move(pixels));
}

DeviceContext::~DeviceContext() = default;

PixelTarget DeviceContext::Target() const {
    PixelTarget target = state.bitmap->Target();
    if (state.bitmap->Shape().shared) target.top = ownPixel_;
    return target;
}

RECT DeviceContext::DrawableBox() const {
    const RECT bounds = Target().Bounds();
    return state.clip ? Intersection(bounds, state.clip->Bounds()) : bounds;
}

bool DeviceContext::MayDrawAt(int32_t x, int32_t y) const {
    const RECT bounds = Target().Bounds();
    return x >= 0 && y >= 0 && x < bounds.right && y < bounds.bottom &&
           (!state.clip || state.clip->Contains(x, y));
}

GdiRef<DeviceContext> FindContext(HDC dc) { return Find<DeviceContext>(dc); }

}  // namespace vxgui::gdi
