#include "tools/view/window/RecolourPanel.h"

#include <QGridLayout>
#include <QLabel>
#include <QSpinBox>

namespace vxgui::view {
namespace {

constexpr int kPause = 25;  // milliseconds

void AddRow(QGridLayout& grid, const char* text, QSlider* slider, const char* unit) {
    auto* const number = new QSpinBox;
    number->setObjectName(slider->objectName() + "Number");
    number->setRange(slider->minimum(), slider->maximum());
    number->setSuffix(unit);
    auto* const label = new QLabel(text);
    label->setBuddy(slider);
    const int row = grid.rowCount();
    grid.addWidget(label, row, 0);
    grid.addWidget(slider, row, 1);
    grid.addWidget(number, row, 2);
    QObject::connect(slider, &QSlider::valueChanged, number, &QSpinBox::setValue);
    QObject::connect(number, &QSpinBox::valueChanged, slider, &QSlider::setValue);
}

}  // namespace

RecolourPanel::RecolourPanel(QWidget* parent)
    : QGroupBox("Recolour the skin", parent),
      hue_(NewSlider("hue", 180)),
      saturation_(NewSlider("saturation", 100)),
      lightness_(NewSlider("lightness", 100)),
      reset_(new QPushButton("Reset")),
      save_(new QPushButton("Save as new skin \u2026")) {
    reset_->setObjectName("resetColours");
    save_->setObjectName("saveSkin");
    auto* const grid = new QGridLayout(this);
    grid->setVerticalSpacing(2);
    AddRow(*grid, "&Hue", hue_, "\u00B0");
    AddRow(*grid, "&Saturation", saturation_, " %");
    AddRow(*grid, "&Lightness", lightness_, " %");
    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(reset_);
    buttons->addWidget(save_, 1);
    grid->addLayout(buttons, grid->rowCount(), 0, 1, 3);
    connect(reset_, &QPushButton::clicked, this, [this] { Reset(); });
    connect(save_, &QPushButton::clicked, this, [this] { saveWanted(); });
    pause_.setSingleShot(true);
    connect(&pause_, &QTimer::timeout, this, [this] { Tell(); });
}

QSlider* RecolourPanel::NewSlider(const char* name, int most) {
    auto* const slider = new QSlider(Qt::Horizontal);
    slider->setObjectName(name);
    slider->setRange(-most, most);
    slider->setPageStep(10);
    connect(slider, &QSlider::valueChanged, this, [this] { pause_.start(kPause); });
    return slider;
}

Recolour RecolourPanel::Value() const {
    return {static_cast<float>(hue_->value()), static_cast<float>(saturation_->value()),
            static_cast<float>(lightness_->value())};
}

void RecolourPanel::Reset() {
    for (QSlider* const slider : {hue_, saturation_, lightness_}) slider->setValue(0);
}

void RecolourPanel::Tell() {
    if (changed) changed(Value());
}

}  // namespace vxgui::view
