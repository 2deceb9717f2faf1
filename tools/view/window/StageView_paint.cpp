#include <QPaintEvent>
#include <QPainter>

#include "tools/view/MarginLines.h"
#include "tools/view/window/QtPixels.h"
#include "tools/view/window/StageView.h"

namespace vxgui::view {
namespace {

const QColor kSliceColour(229, 35, 132);
const QColor kContentColour(0, 148, 120);
const QColor kGripColour(30, 110, 220);

constexpr int kGripSide = 6;

QPen DashedPen(const QColor& colour) {
    QPen pen(colour, 1);
    pen.setDashPattern({4, 3});
    return pen;
}

}  // namespace

void StageView::paintEvent(QPaintEvent*) {
    const gdi::SIZE ground = layout_.GroundSize();
    if (ground.cx < 1 || ground.cy < 1) return;
    if (!sheet_ || sheet_->width() != ground.cx || sheet_->height() != ground.cy)
        sheet_ = std::make_unique<tool::Sheet>(ground.cx, ground.cy);
    ground_.Paint(*sheet_);
    PaintShown(*sheet_, shown_, layout_.ItemAt());
    QPainter painter(this);
    painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
    Paint(painter);
}

// In device pixels.
void StageView::Paint(QPainter& painter) {
    const int factor = layout_.Factor();
    painter.drawImage(QRect(0, 0, sheet_->width() * factor, sheet_->height() * factor),
                      OpaqueImageOf(*sheet_));
    if (!shown_.item) return;
    if (grid_ && zoom_.HasRoomForGrid()) PaintGrid(painter);
    if (margins_) PaintMargins(painter);
    PaintGrips(painter);
}

void StageView::PaintGrid(QPainter& painter) const {
    const gdi::RECT box = layout_.ItemOnScreen();
    painter.setPen(QColor(128, 128, 128, 90));
    for (int x = box.left; x <= box.right; x += layout_.Factor())
        painter.drawLine(x, box.top, x, box.bottom);
    for (int y = box.top; y <= box.bottom; y += layout_.Factor())
        painter.drawLine(box.left, y, box.right, y);
}

void StageView::PaintMargins(QPainter& painter) const {
    constexpr int kBeyond = 10;
    const gdi::RECT box = layout_.ItemOnScreen();
    for (const MarginLine& line : MarginLinesOf(*shown_.item, shown_.size)) {
        const bool slice = line.kind == MarginLine::Kind::Slice;
        const int beyond = slice ? kBeyond : 0;
        painter.setPen(DashedPen(slice ? kSliceColour : kContentColour));
        const int at = line.at * layout_.Factor() + (line.vertical ? box.left : box.top);
        if (line.vertical)
            painter.drawLine(at, box.top - beyond, at, box.bottom + beyond);
        else
            painter.drawLine(box.left - beyond, at, box.right + beyond, at);
    }
}

void StageView::PaintGrips(QPainter& painter) const {
    const gdi::RECT box = layout_.ItemOnScreen();
    const int middle = (box.left + box.right - kGripSide) / 2;
    const int centre = (box.top + box.bottom - kGripSide) / 2;
    painter.setPen(QPen(Qt::white, 1));
    painter.setBrush(kGripColour);
    for (const QPoint& at : {QPoint(box.right + 2, centre), QPoint(middle, box.bottom + 2),
                             QPoint(box.right + 2, box.bottom + 2)})
        painter.drawRect(QRect(at, QSize(kGripSide, kGripSide)));
}

void StageView::Pick(gdi::POINT screen) {
    if (!picked || !sheet_ || !shown_.item) return;
    const gdi::POINT at = layout_.PixelAt(screen);
    const gdi::POINT corner = layout_.ItemAt();
    const int32_t x = at.x + corner.x, y = at.y + corner.y;
    if (x < 0 || y < 0 || x >= sheet_->width() || y >= sheet_->height()) return;
    const bool onItem = layout_.IsOnItem(screen);
    if (onItem && !straight_) {
        straight_ = std::make_unique<tool::Sheet>(shown_.size.cx, shown_.size.cy);
        PaintStraight(*straight_, shown_);
    }
    picked({at, sheet_->At(x, y) | 0xFF000000, onItem, onItem ? straight_->At(at.x, at.y) : 0});
}

}  // namespace vxgui::view
