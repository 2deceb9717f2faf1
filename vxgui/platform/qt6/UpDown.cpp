#include "vxgui/platform/qt6/UpDown.h"

#include <QToolButton>
#include <QVBoxLayout>
#include <algorithm>

namespace vxgui::qt6 {

UpDown::UpDown(QWidget* parent) : QWidget(parent) {
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    AddButton(Qt::UpArrow, "up", 1);
    AddButton(Qt::DownArrow, "down", -1);
}

void UpDown::AddButton(Qt::ArrowType arrow, const char* name, int by) {
    auto* const button = new QToolButton(this);
    button->setArrowType(arrow);
    button->setAutoRepeat(true);
    button->setAccessibleName(name);
    button->setObjectName(name);
    const int height = fontMetrics().height();
    button->setFixedSize(height * 5 / 4, height * 3 / 4);
    layout()->addWidget(button);
    connect(button, &QToolButton::clicked, this, [this, by] { Step(by); });
}

void UpDown::SetRange(int min, int max) {
    min_ = min;
    max_ = max;
    SetValue(value_);
}

void UpDown::SetValue(int value) {
    const int kept = std::clamp(value, min_, max_);
    if (kept == value_) return;
    value_ = kept;
    if (changed) changed(kept);
}

}  // namespace vxgui::qt6
