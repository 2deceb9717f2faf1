#include <algorithm>
#include <new>

#include "vxgui/platform/gdi/text/TextArgument.h"
#include "vxgui/platform/gdi/text/TextLine.h"
#include "vxgui/platform/gdi_text.h"

namespace vxgui::gdi {

BOOL GetTextMetricsA(HDC dc, TEXTMETRICA* metrics) try {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context || !metrics) return 0;
    *metrics = TextSetup(*context).font->Metrics();
    return 1;
} catch (const std::bad_alloc&) {
    return 0;
}

BOOL GetTextExtentPoint32W(HDC dc, const char16_t* text, int count, SIZE* size) try {
    const GdiRef<DeviceContext> context = FindContext(dc);
    std::u16string_view view;
    if (!context || !size || !TextArgument(text, count, &view)) return 0;
    const TextSetup setup(*context);
    size->cx =
        static_cast<LONG>(std::clamp<int64_t>(setup.Shaped(view)->width, INT32_MIN, INT32_MAX));
    size->cy = setup.font->Measures().Height();
    return 1;
} catch (const std::bad_alloc&) {
    return 0;
}

}  // namespace vxgui::gdi
