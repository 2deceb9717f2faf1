#include "vxgui/platform/gdi/DeviceContext.h"

#include <algorithm>
#include <iterator>

#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/StockObjects.h"
#include "vxgui/platform/gdi/ThreadStore.h"

namespace vxgui::gdi {
namespace {

template <class T>
void Select(Selection<T>& place, T* object) {
    if (place.get() != object) place = Selection<T>(GdiRef<T>(object));
}

/// What a fresh context has selected.
struct StockSelection {
    Brush* const brush = StockBrush(WHITE_BRUSH);
    Pen* const pen = StockPen(BLACK_PEN);
    Font* const font = StockFont(SYSTEM_FONT);
    Bitmap* const bitmap = StockBitmap();
};

const StockSelection& Stock() {
    static const StockSelection stock;
    return stock;
}

void SelectStock(DcState& state) {
    Select(state.brush, Stock().brush);
    Select(state.pen, Stock().pen);
    Select(state.font, Stock().font);
}

void End(DeviceContext* context) { delete context; }
using FreshOnes = ThreadStore<DeviceContext, 8, End>;

}  // namespace

std::unique_ptr<DeviceContext> DeviceContext::Fresh() {
    DeviceContext* const kept = FreshOnes::Take();
    return std::unique_ptr<DeviceContext>(kept ? kept : new DeviceContext);
}

DeviceContext::DeviceContext() : GdiObject(kKind), host_(false) { Reset(); }

DeviceContext::DeviceContext(GdiRef<Bitmap> pixels) : GdiObject(kKind), host_(true) {
    SelectStock(state);
    pixels->Claim(this);
    state.bitmap = Selection<Bitmap>(std::move(pixels));
}

DeviceContext::~DeviceContext() = default;

void DeviceContext::Reset() {
    saved = {};
    SelectStock(state);
    Select(state.bitmap, Stock().bitmap);
    state.clip.reset();
    state.path.reset();
    static_cast<DcValues&>(state) = {};
    std::fill(std::begin(ownPixel_), std::end(ownPixel_), uint8_t{0});
}

void DeviceContext::Drop() {
    if (host_) return End(this);
    Reset();
    FreshOnes::Give(this);
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
