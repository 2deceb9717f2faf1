#include <cstdio>

#include "vxgui/base/Rounding.h"
#include "vxgui/colour/frmAdjustHLS.h"
#include "vxgui/platform/core7.h"
#include "vxgui/surface/ScratchContext.h"
#include "vxgui/surface/cAlphaDIBSection.h"

// The preview, and the two panes with their pan and zoom.
namespace vxgui {
namespace {

/// The times that the steps of a preview took, the last one first.
class Timings {
public:
    void Note() {
        char number[40];
        std::snprintf(number, sizeof number, "%.3f ms   ", watch_.ElapsedMilliseconds());
        text_ = String(number) + text_;
    }
    void Restart() { watch_.Restart(); }
    std::u16string_view Text() const { return text_.view(); }

private:
    core7::Stopwatch watch_;
    String text_;
};

/// A device context over a pane's pixels.
class PaneContext {
public:
    explicit PaneContext(const forms::PanePixels& pixels)
        : dc_(gdi::CreateHostDC(
              {pixels.first, pixels.width, pixels.height, pixels.stride, false})) {}
    ~PaneContext() { gdi::DeleteDC(dc_); }
    PaneContext(const PaneContext&) = delete;
    PaneContext& operator=(const PaneContext&) = delete;
    operator gdi::HDC() const { return dc_; }

private:
    gdi::HDC dc_;
};

}  // namespace

void frmAdjustHLS::AdjustAll(int32_t bRaiseEvent) {
    const WheelValues now = values_.ForWheel();
    surface_->AdjustHLS(static_cast<float>(now.hue), static_cast<float>(now.lightness),
                        static_cast<float>(now.saturation), now.colourize, bRaiseEvent);
}

void frmAdjustHLS::AdjustView() {
    const WheelValues now = values_.ForWheel();
    surface_->AdjustHLS(static_cast<float>(now.hue), static_cast<float>(now.lightness),
                        static_cast<float>(now.saturation), now.colourize, 0, view_.PanX(),
                        view_.PanY(), RoundHalfEven(view_.ShownWidth() + view_.PanX()),
                        RoundHalfEven(view_.ShownHeight() + view_.PanY()));
}

void frmAdjustHLS::Preview() {
    if (!surface_) return;
    Timings timings;
    surface_->ResetAdjustColor();
    timings.Note();
    timings.Restart();
    if (previewTicked_) {
        AdjustAll(1);
    } else {
        AdjustView();
    }
    timings.Note();
    form_->RepaintPane(forms::Pane::After);
    timings.Note();
    form_->TimingText(timings.Text());
}

void frmAdjustHLS::PreviewChanged(bool ticked) {
    previewTicked_ = ticked;
    if (ticked) Preview();
}

void frmAdjustHLS::ZoomUp() {
    view_.ZoomUp();
    FollowZoom();
}

void frmAdjustHLS::ZoomDown() {
    view_.ZoomDown();
    FollowZoom();
}

void frmAdjustHLS::FollowZoom() {
    form_->ScaleText(view_.ScaleText().view());
    EnforceBounds();
}

void frmAdjustHLS::EnforceBounds() {
    view_.EnforceBounds();
    form_->RepaintPane(forms::Pane::Before);
    if (previewTicked_) {
        form_->RepaintPane(forms::Pane::After);
    } else {
        Preview();
    }
}

void frmAdjustHLS::MousePressed(double x, double y) { view_.StartDrag(x, y); }

void frmAdjustHLS::MouseMoved(double x, double y) {
    if (view_.Drag(x, y)) EnforceBounds();
}

void frmAdjustHLS::MouseReleased(double x, double y) {
    MouseMoved(x, y);
    view_.EndDrag();
}

void frmAdjustHLS::PaintWheel(const forms::PanePixels& pixels) {
    const PaneContext dc(pixels);
    if (wheel_) wheel_->Paint(dc, values_.ForWheel());
}

void frmAdjustHLS::PaintPane(forms::Pane pane, const forms::PanePixels& pixels) {
    const PaneContext dc(pixels);
    const Ref<ole::Picture> picture =
        pane == forms::Pane::Before ? unadjusted_ : surface_->Picture();
    if (!picture) return;
    const ScratchContext source(dc);
    const ScopedSelection selection(source.get(), picture->Handle());
    gdi::SetStretchBltMode(dc, gdi::COLORONCOLOR);
    gdi::StretchBlt(dc, 0, 0, view_.ViewWidth(), view_.ViewHeight(), source.get(), view_.PanX(),
                    view_.PanY(), RoundHalfEven(view_.ShownWidth()),
                    RoundHalfEven(view_.ShownHeight()), gdi::SRCCOPY);
}

}  // namespace vxgui
