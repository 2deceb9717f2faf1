#include <algorithm>
#include <cstring>
#include <new>

#include "vxgui/platform/gdi/text/DrawTextCall.h"
#include "vxgui/platform/gdi/text/TextArgument.h"
#include "vxgui/platform/kernel.h"

namespace vxgui::gdi {
namespace {

LONG Clamped(int64_t value) {
    return static_cast<LONG>(std::clamp<int64_t>(value, INT32_MIN, INT32_MAX));
}

/// What `DT_MODIFYSTRING` lets a text grow by, the zero included.
constexpr size_t kLargestGrowth = 4;

void WriteBack(const std::u16string& modified, size_t length, char16_t* text) {
    if (modified.empty() || modified.size() + 1 > length + kLargestGrowth) return;
    std::copy(modified.begin(), modified.end(), text);
    text[modified.size()] = 0;
}

/// `modify` is the text's own memory where it may be written to.
int DrawAny(HDC dc, std::u16string_view text, RECT* rect, UINT flags, char16_t* modify) {
    const GdiRef<DeviceContext> context = FindContext(dc);
    if (!context || !rect) return 0;
    DrawTextCall call(*context, text, *rect, flags);
    call.Run();
    if (call.Options().Has(DT_CALCRECT)) {
        rect->right = Clamped(rect->left + call.Widest());
        rect->bottom = Clamped(rect->top + call.Height());
    }
    if (modify && call.Options().Has(DT_MODIFYSTRING)) {
        WriteBack(call.Modified(), text.size(), modify);
    }
    // Nothing to draw is no failure, which 0 would say.
    return call.Height() == 0 ? 1 : Clamped(call.Height());
}

}  // namespace

int DrawTextW(HDC dc, char16_t* text, int count, RECT* rect, UINT flags) try {
    std::u16string_view view;
    return TextArgument(text, count, &view) ? DrawAny(dc, view, rect, flags, text) : 0;
} catch (const std::bad_alloc&) {
    return 0;
}

int DrawTextA(HDC dc, const char* text, int count, RECT* rect, UINT flags) try {
    if (count < -1 || (!text && count != 0)) return 0;
    const size_t bytes = count == -1 ? std::strlen(text) : static_cast<size_t>(count);
    if (bytes > ApartmentLimits().textUnits) return 0;
    const String wide = kernel::TextFromAnsi({text, bytes});
    return DrawAny(dc, wide.view(), rect, flags, nullptr);
} catch (const std::bad_alloc&) {
    return 0;
}

}  // namespace vxgui::gdi
