#include "vxgui/colour/PictureView.h"

#include <algorithm>

#include "vxgui/base/Rounding.h"

namespace vxgui {
namespace {

constexpr float kClosest = 8, kFarthest = 1.0f / 8;

int32_t Bounded(int32_t pan, int32_t picture, double shown) {
    const int32_t bounded = std::max(pan, 0);
    const double last = picture - shown;
    return last < bounded ? RoundHalfEven(last) : bounded;
}

}  // namespace

void PictureView::PictureSize(int32_t width, int32_t height) {
    pictureWidth_ = width;
    pictureHeight_ = height;
    // A place that an earlier, larger picture left behind is none.
    if (panX_ >= width || panY_ >= height) panX_ = panY_ = 0;
}

void PictureView::ViewSize(int32_t width, int32_t height) {
    viewWidth_ = width;
    viewHeight_ = height;
}

void PictureView::StartDrag(double x, double y) {
    dragging_ = true;
    lastX_ = RoundHalfEven(x);
    lastY_ = RoundHalfEven(y);
}

bool PictureView::Drag(double x, double y) {
    if (!dragging_ || (x == lastX_ && y == lastY_)) return false;
    // Pixels of the pane, whatever the zoom, which is meant.
    panX_ = WrapAdd(panX_, RoundHalfEven(lastX_ - x));
    panY_ = WrapAdd(panY_, RoundHalfEven(lastY_ - y));
    lastX_ = RoundHalfEven(x);
    lastY_ = RoundHalfEven(y);
    return true;
}

void PictureView::EndDrag() {
    dragging_ = false;
    lastX_ = lastY_ = 0;
}

void PictureView::ZoomUp() {
    if (zoom_ < kClosest) zoom_ *= 2;
}

void PictureView::ZoomDown() {
    if (zoom_ > kFarthest) zoom_ /= 2;
}

String PictureView::ScaleText() const {
    if (zoom_ > 1) return String::FromInt(RoundHalfEven(zoom_)) + ":1";
    return "1:" + String::FromInt(RoundHalfEven(1 / zoom_));
}

void PictureView::EnforceBounds() {
    panX_ = Bounded(panX_, pictureWidth_, ShownWidth());
    panY_ = Bounded(panY_, pictureHeight_, ShownHeight());
}

}  // namespace vxgui
