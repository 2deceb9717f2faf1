#pragma once

#include <QImage>
#include <QWidget>
#include <functional>

#include "vxgui/platform/forms.h"

namespace vxgui::qt6 {

/// A widget whose device pixels somebody else paints.
class PixelPane : public QWidget {
public:
    using Painter = std::function<void(const forms::PanePixels&)>;

    /// With a `side` the painter always gets a square of so many pixels, which is scaled to the
    /// widget; without one it gets the widget's own device pixels.
    PixelPane(Painter painter, int side, QWidget* parent);

    /// In device pixels, as mouse positions are.
    QSizeF PixelSize() const { return QSizeF(size()) * devicePixelRatioF(); }

    std::function<void(double, double)> pressed, moved, released;
    std::function<void()> resized;

protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent* event) override { Tell(pressed, *event); }
    void mouseMoveEvent(QMouseEvent* event) override { Tell(moved, *event); }
    void mouseReleaseEvent(QMouseEvent* event) override { Tell(released, *event); }

private:
    void Tell(const std::function<void(double, double)>& listener, const QMouseEvent& event);

    Painter painter_;
    int side_;
    QImage image_;
};

}  // namespace vxgui::qt6
