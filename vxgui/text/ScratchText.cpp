#include "vxgui/text/ScratchText.h"

#include <algorithm>

#include "vxgui/base/Rounding.h"
#include "vxgui/platform/kernel.h"

namespace vxgui {

gdi::RECT Inflated(const gdi::RECT& rect, int32_t dx, int32_t dy) {
    return {WrapSub(rect.left, dx), WrapSub(rect.top, dy), WrapAdd(rect.right, dx),
            WrapAdd(rect.bottom, dy)};
}

gdi::RECT Offset(const gdi::RECT& rect, int32_t dx, int32_t dy) {
    return {WrapAdd(rect.left, dx), WrapAdd(rect.top, dy), WrapAdd(rect.right, dx),
            WrapAdd(rect.bottom, dy)};
}

int32_t WidthOf(const gdi::RECT& rect) { return WrapSub(rect.right, rect.left); }
int32_t HeightOf(const gdi::RECT& rect) { return WrapSub(rect.bottom, rect.top); }

Ref<cAlphaDIBSection> ScratchSurface(int32_t width, int32_t height, gdi::HDC compatible) {
    if (width < 1 || height < 1) return nullptr;
    Ref<cAlphaDIBSection> surface = New<cAlphaDIBSection>();
    return surface->CreateWithCompatibleDC(width, height, compatible) ? surface : nullptr;
}

int32_t DrawTextAnsi(gdi::HDC dc, const String& text, int32_t count, gdi::RECT& rect,
                     uint32_t format) {
    const std::string ansi = kernel::AnsiFromText(text);
    const auto size = static_cast<int32_t>(std::min<size_t>(ansi.size(), INT32_MAX));
    return gdi::DrawTextA(dc, ansi.c_str(), count < 0 ? -1 : std::min(count, size), &rect, format);
}

}  // namespace vxgui
