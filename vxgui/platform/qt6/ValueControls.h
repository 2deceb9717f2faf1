#pragma once

#include <QLabel>
#include <QSlider>

#include "vxgui/platform/qt6/NumberEdit.h"
#include "vxgui/platform/qt6/UpDown.h"

class QGridLayout;

namespace vxgui::qt6 {

/// One value of the colour dialog: label, slider, text box and up-down control, in a column.
struct ValueControls {
    QLabel* label;
    QSlider* slider;
    NumberEdit* text;
    UpDown* upDown;
};

ValueControls MakeValueControls(QWidget* parent, const QString& caption, int index);
void Place(const ValueControls& controls, QGridLayout& layout, int column);

}  // namespace vxgui::qt6
