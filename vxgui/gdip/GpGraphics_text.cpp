#include "vxgui/gdip/GpBrush.h"
#include "vxgui/gdip/GpFont.h"
#include "vxgui/gdip/GpGraphics.h"
#include "vxgui/gdip/GpStringFormat.h"
#include "vxgui/gdip/LentContext.h"
#include "vxgui/platform/gdi_text.h"

namespace vxgui {
namespace {

// What stands in for the objects that a caller leaves out, for the length of one call.
class Defaults {
public:
    explicit Defaults(GpGraphics& graphics) : context_(graphics) {}

    void Fill(gdiplus::GpStringFormat*& format) {
        if (format) return;
        format_ = New<GpStringFormat>();
        format = format_->Handle();
    }
    void Fill(gdiplus::GpFont*& font) {
        if (font) return;
        font_ = New<GpFont>();
        if (font_->FromHDC(context_.Get())) font = font_->Handle();
    }
    // The colour goes in as it is, so that red and blue are exchanged: that is meant.
    void Fill(gdiplus::GpBrush*& brush) {
        if (brush) return;
        brush_ = New<GpBrush>();
        if (brush_->CreateSolidBrush(gdi::GetTextColor(context_.Get()) | 0xFF000000))
            brush = brush_->Handle();
    }
    /// Nothing can be drawn before.
    void ReleaseContext() { context_.Release(); }

private:
    LentContext context_;
    Ref<GpStringFormat> format_;
    Ref<GpFont> font_;
    Ref<GpBrush> brush_;
};

}  // namespace

bool GpGraphics::MeasureString(const String& sText, gdiplus::GpRectF* lpRectFBoundingBox,
                               int32_t Length, gdiplus::GpFont* hGpFont,
                               gdiplus::GpStringFormat* hGpStringFormat,
                               const gdiplus::GpRectF* lpRectFLayout, int32_t* CodePointsFitted,
                               int32_t* LinesFilled) {
    const KeepAlive keep(this);
    Defaults defaults(*this);
    defaults.Fill(hGpStringFormat);
    defaults.Fill(hGpFont);
    defaults.ReleaseContext();
    const gdiplus::GpRectF layout = lpRectFLayout ? *lpRectFLayout : gdiplus::GpRectF{};
    gdiplus::GpRectF box{};
    const bool measured =
        Check(flat::GdipMeasureString(handle_, sText.data(), Length, hGpFont, &layout,
                                      hGpStringFormat, &box, CodePointsFitted, LinesFilled));
    if (measured && lpRectFBoundingBox) *lpRectFBoundingBox = box;
    return measured;
}

bool GpGraphics::DrawString(const String& sText, int32_t Left, int32_t Top, int32_t Width,
                            int32_t Height, int32_t Length,
                            gdiplus::GpStringFormat* hGpStringFormat, gdiplus::GpBrush* hGpBrush,
                            gdiplus::GpFont* hGpFont) {
    const KeepAlive keep(this);
    gdiplus::GpRectF rect{static_cast<float>(Left), static_cast<float>(Top),
                          static_cast<float>(Width), static_cast<float>(Height)};
    Defaults defaults(*this);
    defaults.Fill(hGpStringFormat);
    defaults.Fill(hGpFont);
    defaults.Fill(hGpBrush);
    defaults.ReleaseContext();
    if (Width < 1 || Height < 1) {
        const gdiplus::GpRectF layout = rect;
        Check(flat::GdipMeasureString(handle_, sText.data(), Length, hGpFont, &layout,
                                      hGpStringFormat, &rect, nullptr, nullptr));
    }
    return Check(flat::GdipDrawString(handle_, sText.data(), Length, hGpFont, &rect,
                                      hGpStringFormat, hGpBrush));
}

}  // namespace vxgui
