#include "tools/view/window/StageView.h"

#include <QMouseEvent>
#include <QtMath>

namespace vxgui::view {

StageView::StageView(QWidget* parent) : QWidget(parent) {
    setObjectName("stage");
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(200, 160);
}

void StageView::Show(const Ref<ThemeItem>& item, const String& caption, gdi::SIZE size) {
    shown_.item = item;
    shown_.caption = caption;
    shown_.size = size;
    Arrange();
}

void StageView::Caption(const String& caption) {
    shown_.caption = caption;
    ItemChanged();
}

void StageView::ItemSize(gdi::SIZE size) {
    if (size.cx == shown_.size.cx && size.cy == shown_.size.cy) return;
    shown_.size = size;
    Arrange();
    if (sizeChanged) sizeChanged();
}

void StageView::Background(const Ground& ground) {
    ground_ = ground;
    update();
}

void StageView::Factor(int32_t factor) {
    zoom_.Factor(factor);
    Arrange();
    if (zoomChanged) zoomChanged();
}

void StageView::ZoomIn() {
    if (zoom_.In()) Factor(zoom_.Factor());
}

void StageView::ZoomOut() {
    if (zoom_.Out()) Factor(zoom_.Factor());
}

void StageView::ShowMargins(bool shown) {
    margins_ = shown;
    update();
}

void StageView::ShowGrid(bool shown) {
    grid_ = shown;
    update();
}

void StageView::Change(const std::function<void(ViewedItem&)>& change) {
    change(control_);
    if (control_.State() == shown_.state) return;
    shown_.state = control_.State();
    ItemChanged();
    if (stateChanged) stateChanged();
}

QRect StageView::ItemRect() const {
    const gdi::RECT box = layout_.ItemOnScreen();
    const double ratio = devicePixelRatioF();
    return QRectF(box.left / ratio, box.top / ratio, (box.right - box.left) / ratio,
                  (box.bottom - box.top) / ratio)
        .toRect();
}

void StageView::Arrange() {
    const double ratio = devicePixelRatioF();
    const gdi::SIZE needed = StageLayout::Needed(shown_.size, zoom_.Factor());
    setMinimumSize(std::max(200, qCeil(needed.cx / ratio)),
                   std::max(160, qCeil(needed.cy / ratio)));
    if (drag_.grip.IsNone()) {
        layout_.Arrange({qCeil(width() * ratio), qCeil(height() * ratio)}, shown_.size,
                        zoom_.Factor());
    } else {
        layout_.Resize(shown_.size);  // the side that is held must stay under the hand
    }
    ItemChanged();
}

void StageView::ItemChanged() {
    straight_.reset();
    update();
}

void StageView::resizeEvent(QResizeEvent*) { Arrange(); }

gdi::POINT StageView::DevicePosition(const QMouseEvent& event) const {
    const QPointF place = event.position() * devicePixelRatioF();
    return {qFloor(place.x()), qFloor(place.y())};
}

void StageView::mouseMoveEvent(QMouseEvent* event) {
    const gdi::POINT place = DevicePosition(*event);
    if (!drag_.grip.IsNone()) return Drag(place);
    const bool held = event->buttons() & Qt::LeftButton;
    ShowGrip(held ? Grip() : layout_.GripAt(place));
    Change([&](ViewedItem& control) { control.Hover(layout_.IsOnItem(place)); });
    Pick(place);
}

void StageView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    const gdi::POINT place = DevicePosition(*event);
    drag_ = {layout_.GripAt(place), place, shown_.size};
    if (!drag_.grip.IsNone()) return;
    const bool over = layout_.IsOnItem(place);
    Change([&](ViewedItem& control) {
        control.Hover(over);
        control.Focus(over);
        control.Press();
    });
}

void StageView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    drag_ = {};
    Arrange();
    const bool over = layout_.IsOnItem(DevicePosition(*event));
    Change([&](ViewedItem& control) {
        control.Release();
        control.Hover(over);
    });
}

void StageView::Drag(gdi::POINT to) {
    ItemSize(layout_.Dragged(drag_.before, drag_.grip, drag_.from, to));
}

void StageView::ShowGrip(Grip grip) {
    if (grip.IsNone()) return unsetCursor();
    setCursor(grip.right && grip.bottom ? Qt::SizeFDiagCursor
              : grip.right              ? Qt::SizeHorCursor
                                        : Qt::SizeVerCursor);
}

void StageView::leaveEvent(QEvent*) {
    Change([](ViewedItem& control) { control.Hover(false); });
}

void StageView::wheelEvent(QWheelEvent* event) {
    if (!(event->modifiers() & Qt::ControlModifier)) return event->ignore();
    event->angleDelta().y() > 0 ? ZoomIn() : ZoomOut();
}

void StageView::keyPressEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space) return QWidget::keyPressEvent(event);
    if (event->isAutoRepeat()) return;
    Change([](ViewedItem& control) { control.PressByKey(); });
}

void StageView::keyReleaseEvent(QKeyEvent* event) {
    if (event->key() != Qt::Key_Space) return QWidget::keyReleaseEvent(event);
    if (event->isAutoRepeat()) return;
    Change([](ViewedItem& control) { control.ReleaseByKey(); });
}

// A click decides for itself whether it was on the control.
void StageView::focusInEvent(QFocusEvent* event) {
    if (event->reason() == Qt::MouseFocusReason) return;
    Change([](ViewedItem& control) { control.Focus(true); });
}

void StageView::focusOutEvent(QFocusEvent*) {
    Change([](ViewedItem& control) { control.Focus(false); });
}

}  // namespace vxgui::view
