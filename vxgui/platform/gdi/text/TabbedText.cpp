#include <new>

#include "vxgui/platform/gdi/text/TextArgument.h"
#include "vxgui/platform/gdi/text/TextOutput.h"
#include "vxgui/platform/gdi_text.h"

namespace vxgui::gdi {
namespace {

/// The average widths from one stop to the next where none are given.
constexpr int kDefaultStop = 8;

/// One position is the distance of all stops; several are used up first.
TabStops StopsOf(const TextSetup& setup, int count, const int* tabs) {
    TabStops stops;
    stops.distance = setup.font->Measures().averageWidth * kDefaultStop;
    if (!tabs || count <= 0) return stops;
    if (count == 1) {
        stops.distance = tabs[0];
    } else {
        stops.positions = tabs;
        stops.count = count;
    }
    return stops;
}

/// Width in the low and height in the high 16 bits.
DWORD Packed(const TextLine& line, const TextSetup& setup) {
    const auto width = static_cast<uint16_t>(line.width);
    const auto height = static_cast<uint16_t>(setup.font->Measures().Height());
    return static_cast<DWORD>(height) << 16 | width;
}

}  // namespace

DWORD GetTabbedTextExtentW(HDC dc, const char16_t* text, int count, int tabCount,
                           const int* tabs) try {
    const GdiRef<DeviceContext> context = FindContext(dc);
    std::u16string_view view;
    if (!context || !TextArgument(text, count, &view)) return 0;
    const TextSetup setup(*context);
    return Packed(MakeTabbedLine(setup, view, StopsOf(setup, tabCount, tabs), 0), setup);
} catch (const std::bad_alloc&) {
    return 0;
}

LONG TabbedTextOutW(HDC dc, int x, int y, const char16_t* text, int count, int tabCount,
                    const int* tabs, int tabOrigin) try {
    const GdiRef<DeviceContext> context = FindContext(dc);
    std::u16string_view view;
    if (!context || !TextArgument(text, count, &view)) return 0;
    const TextSetup setup(*context);
    const TextPoint at = PlaceOf(*context, {x, y});
    const TextLine line =
        MakeTabbedLine(setup, view, StopsOf(setup, tabCount, tabs), tabOrigin - at.x);
    PaintAt(*context, setup, context->Target().Bounds(), line, at);
    return static_cast<LONG>(Packed(line, setup));
} catch (const std::bad_alloc&) {
    return 0;
}

}  // namespace vxgui::gdi
