#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "tools/view/Ground.h"
#include "tools/view/PickedPixel.h"
#include "tools/view/ShownItem.h"
#include "tools/view/StageLayout.h"
#include "tools/view/ViewedItem.h"
#include "tools/view/Zoom.h"

namespace vxgui::view {

/// The stage: one item of a skin as a live control, on a ground, under a magnifying glass.
class StageView : public QWidget {
public:
    explicit StageView(QWidget* parent = nullptr);

    /// Shows an item; mouse and focus stay as they are.
    void Show(const Ref<ThemeItem>& item, const String& caption, gdi::SIZE size);
    void Caption(const String& caption);
    void ItemSize(gdi::SIZE size);
    void Background(const Ground& ground);
    void Factor(int32_t factor);
    void ZoomIn();
    void ZoomOut();
    void ShowMargins(bool shown);
    void ShowGrid(bool shown);
    /// Changes what the control goes by, and shows the state that follows.
    void Change(const std::function<void(ViewedItem&)>& change);

    const ShownItem& Shown() const { return shown_; }
    const ViewedItem& Control() const { return control_; }
    int32_t Factor() const { return zoom_.Factor(); }
    /// Where the item stands, in the widget's own coordinates.
    QRect ItemRect() const;

    std::function<void()> stateChanged;
    std::function<void()> sizeChanged;
    std::function<void()> zoomChanged;
    std::function<void(const PickedPixel&)> picked;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void Arrange();
    void ItemChanged();
    void Paint(QPainter& painter);
    void PaintGrid(QPainter& painter) const;
    void PaintMargins(QPainter& painter) const;
    void PaintGrips(QPainter& painter) const;
    void Drag(gdi::POINT to);
    void ShowGrip(Grip grip);
    void Pick(gdi::POINT screen);
    gdi::POINT DevicePosition(const QMouseEvent& event) const;

    ShownItem shown_;
    ViewedItem control_;
    Zoom zoom_;
    Ground ground_;
    StageLayout layout_;
    bool margins_ = false;
    bool grid_ = true;
    /// A drag at one of the item's sides; none is under way without a grip.
    struct {
        Grip grip;
        gdi::POINT from;
        gdi::SIZE before;
    } drag_{};
    std::unique_ptr<tool::Sheet> sheet_;     ///< what is on the screen, unmagnified
    std::unique_ptr<tool::Sheet> straight_;  ///< the item itself, once the picker asked for it
};

}  // namespace vxgui::view
