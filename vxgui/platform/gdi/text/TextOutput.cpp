#include "vxgui/platform/gdi/text/TextOutput.h"

#include <new>
#include "vxgui/platform/gdi/Record.h"
#include "vxgui/platform/gdi/text/LinePainter.h"
#include "vxgui/platform/gdi/text/TextArgument.h"
#include "vxgui/platform/gdi_text.h"
#include "vxgui/platform/limits.h"

namespace vxgui::gdi {
namespace {

constexpr UINT kRightToLeftReading = 0x80;  // ETO_RTLREADING

/// Fills a rectangle with the background colour.
void PaintBackground(const DeviceContext& context, const RECT& rect) {
    const PixelTarget target = context.Target();
    CoveragePaint paint(target, SwapRedAndBlue(context.state.backColor));
    ForEachClipRect(context, rect, [&](const RECT& part) { paint.Fill(part); });
}

}  // namespace

TextPoint PlaceOf(const DeviceContext& context, TextPoint point) {
    const DcState& state = context.state;
    if ((state.textAlign & TA_UPDATECP) == 0) return point;
    return {state.position.x, state.position.y};
}

void PaintAt(DeviceContext& context, const TextSetup& setup, const RECT& clip, const TextLine& line,
             TextPoint at) {
    DcState& state = context.state;
    LinePainter(context, setup, clip).Paint(line, at.x, at.y);
    const bool centred = (state.textAlign & TA_CENTER) == TA_CENTER;
    if ((state.textAlign & TA_UPDATECP) == 0 || centred) return;
    const int64_t moved = (state.textAlign & TA_RIGHT) != 0 ? -line.width : line.width;
    state.position.x = static_cast<LONG>(at.x + moved);
}

BOOL ExtTextOutW(HDC dc, int x, int y, UINT options, const RECT* rect, const char16_t* text,
                 UINT count, const int* advances) try {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context || (!text && count != 0) || count > ApartmentLimits().textUnits) return 0;
    if (rect && (options & ETO_OPAQUE) != 0) PaintBackground(*context, *rect);
    TextSetup setup(*context);
    setup.spacing.given = advances;
    setup.rightToLeft = (options & kRightToLeftReading) != 0;
    const bool clipped = rect && (options & ETO_CLIPPED) != 0;
    const RECT clip = clipped ? *rect : context->Target().Bounds();
    PaintAt(*context, setup, clip, MakeLine(setup, {text, count}), PlaceOf(*context, {x, y}));
    return 1;
} catch (const std::bad_alloc&) {
    return 0;
}

BOOL TextOutW(HDC dc, int x, int y, const char16_t* text, int count) {
    std::u16string_view view;
    if (!TextArgument(text, count, &view)) return 0;
    return ExtTextOutW(dc, x, y, 0, nullptr, view.data(), static_cast<UINT>(view.size()), nullptr);
}

}  // namespace vxgui::gdi
