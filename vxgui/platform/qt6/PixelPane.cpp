#include "vxgui/platform/qt6/PixelPane.h"

#include <QMouseEvent>
#include <QPainter>

namespace vxgui::qt6 {

PixelPane::PixelPane(Painter painter, int side, QWidget* parent)
    : QWidget(parent), painter_(std::move(painter)), side_(side) {
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void PixelPane::paintEvent(QPaintEvent*) {
    const QSize size = side_ > 0 ? QSize(side_, side_) : PixelSize().toSize();
    if (size.isEmpty()) return;
    if (image_.size() != size) image_ = QImage(size, QImage::Format_RGB32);
    image_.fill(palette().window().color());
    painter_({reinterpret_cast<uint32_t*>(image_.bits()), image_.bytesPerLine(), size.width(),
              size.height()});
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect(), image_);
}

void PixelPane::resizeEvent(QResizeEvent*) {
    if (resized) resized();
}

void PixelPane::Tell(const std::function<void(double, double)>& listener,
                     const QMouseEvent& event) {
    const QPointF place = event.position() * devicePixelRatioF();
    if (listener) listener(place.x(), place.y());
}

}  // namespace vxgui::qt6
