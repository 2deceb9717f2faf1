#include "tools/view/window/PickerPanel.h"

#include <QFontDatabase>
#include <QGridLayout>

#include "tools/view/window/QtPixels.h"

namespace vxgui::view {
namespace {

QLabel* NewValue(const char* name) {
    auto* const label = new QLabel("\u2013");
    label->setObjectName(name);
    label->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    return label;
}

}  // namespace

PickerPanel::PickerPanel(QWidget* parent)
    : QGroupBox("Colour under the mouse", parent),
      swatch_(new QLabel),
      place_(NewValue("pickedPlace")),
      hex_(NewValue("pickedHex")),
      bgra_(NewValue("pickedBgra")) {
    swatch_->setFixedSize(40, 40);
    swatch_->setFrameShape(QFrame::Box);
    bgra_->setToolTip("The item's own blue, green, red and alpha, whatever stands behind it");
    auto* const grid = new QGridLayout(this);
    grid->setVerticalSpacing(2);
    grid->addWidget(swatch_, 0, 0, 3, 1, Qt::AlignTop);
    int row = 0;
    for (auto [name, value] : {std::pair("Place", place_), {"Screen", hex_}, {"BGRA", bgra_}}) {
        grid->addWidget(NewNameLabel(name), row, 1);
        grid->addWidget(value, row++, 2);
    }
    grid->setColumnStretch(2, 1);
}

void PickerPanel::Tell(const PickedPixel& pixel) {
    place_->setText(QtText(pixel.Place()));
    hex_->setText(QtText(pixel.Hex()));
    bgra_->setText(pixel.onItem ? QtText(pixel.Bgra()) : "\u2013");
    QPixmap colour(40, 40);
    colour.fill(QColor(QRgb(pixel.shown)));
    swatch_->setPixmap(colour);
}

}  // namespace vxgui::view
