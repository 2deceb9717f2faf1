#pragma once

#include <cstdint>

#include "vxgui/base/Export.h"
#include "vxgui/base/String.h"

namespace vxgui {

/// The part of a picture that a pane shows: where it begins, and how many picture pixels a pixel
/// of the pane stands for.
class VXGUI_LOCAL PictureView {
public:
    void PictureSize(int32_t width, int32_t height);
    void ViewSize(int32_t width, int32_t height);
    void ResetZoom() { zoom_ = 1; }

    int32_t PanX() const { return panX_; }
    int32_t PanY() const { return panY_; }
    float Zoom() const { return zoom_; }
    int32_t ViewWidth() const { return viewWidth_; }
    int32_t ViewHeight() const { return viewHeight_; }
    /// What is shown, in picture pixels.
    double ShownWidth() const { return static_cast<double>(zoom_) * viewWidth_; }
    double ShownHeight() const { return static_cast<double>(zoom_) * viewHeight_; }

    void StartDrag(double x, double y);
    /// True when the place moved during a drag; `EnforceBounds` is then due.
    bool Drag(double x, double y);
    void EndDrag();
    bool Dragging() const { return dragging_; }

    /// One step, from an eighth to eight; at the end nothing changes.
    void ZoomUp();
    void ZoomDown();
    /// "4:1" above 1, "1:4" below.
    String ScaleText() const;

    /// First no place is negative, then none is past what fills the view: a picture smaller than
    /// the view ends at its right and bottom edges, which is meant.
    void EnforceBounds();

private:
    int32_t pictureWidth_ = 0, pictureHeight_ = 0;
    int32_t panX_ = 0, panY_ = 0;
    int32_t viewWidth_ = 0, viewHeight_ = 0;
    bool dragging_ = false;
    int32_t lastX_ = 0, lastY_ = 0;
    float zoom_ = 1;
};

}  // namespace vxgui
