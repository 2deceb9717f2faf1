#include "vxgui/base/Require.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpPath.h"

namespace vxgui {

gdiplus::Status GpPath::AddString(const String& Text, int32_t Length,
                                  gdiplus::GpFontFamily* hGpFontFamily, int32_t Style, float emSize,
                                  const gdiplus::GpRectF& LayoutRect,
                                  gdiplus::GpStringFormat* hGpStringFormat) {
    return flat::GdipAddPathString(Handle(), Text.data(), Length, hGpFontFamily, Style, emSize,
                                   &LayoutRect, hGpStringFormat);
}

gdiplus::Status GpPath::AddStringI(const String& Text, int32_t Length,
                                   gdiplus::GpFontFamily* hGpFontFamily, int32_t Style,
                                   float emSize, const gdiplus::GpRect& LayoutRect,
                                   gdiplus::GpStringFormat* hGpStringFormat) {
    return flat::GdipAddPathStringI(Handle(), Text.data(), Length, hGpFontFamily, Style, emSize,
                                    &LayoutRect, hGpStringFormat);
}

template <class Rect, class Call>
bool GpPath::AddWithFont(const String& text, const Ref<GpFont>& font,
                         gdiplus::GpStringFormat* format, const Rect& rect, const Call& call) {
    GpFont& from = Require(font, "GpPath.AddStringWithFont");
    const Ref<GpFontFamily> family = from.FontFamily();
    return Check(call(Handle(), text.data(), -1, family ? family->Handle() : nullptr, from.Style(),
                      from.PathEmSize(), &rect, format));
}

bool GpPath::AddStringWithFont(const String& Text, const Ref<GpFont>& Font,
                               gdiplus::GpStringFormat* hGpStringFormat, float Left, float Top,
                               float Width, float Height) {
    return AddWithFont(Text, Font, hGpStringFormat, gdiplus::GpRectF{Left, Top, Width, Height},
                       flat::GdipAddPathString);
}

bool GpPath::AddStringWithFontI(const String& Text, const Ref<GpFont>& Font,
                                gdiplus::GpStringFormat* hGpStringFormat, int32_t Left, int32_t Top,
                                int32_t Width, int32_t Height) {
    return AddWithFont(Text, Font, hGpStringFormat, gdiplus::GpRect{Left, Top, Width, Height},
                       flat::GdipAddPathStringI);
}

}  // namespace vxgui
