#include "vxgui/platform/qt6/ValueControls.h"

#include <QGridLayout>

namespace vxgui::qt6 {

ValueControls MakeValueControls(QWidget* parent, const QString& caption, int index) {
    const ValueControls made{new QLabel(caption, parent), new QSlider(Qt::Vertical, parent),
                             new NumberEdit(parent), new UpDown(parent)};
    // The least value is at the top: the slider holds the number upside down.
    made.slider->setInvertedAppearance(true);
    made.slider->setInvertedControls(true);
    made.slider->setPageStep(10);
    made.slider->setAccessibleName(caption);
    made.slider->setMinimumHeight(parent->fontMetrics().height() * 8);
    made.text->setAccessibleName(caption);
    made.text->setFixedWidth(parent->fontMetrics().horizontalAdvance("-00000"));
    made.label->setBuddy(made.text);
    made.slider->setObjectName(QString("Slider1_%1").arg(index));
    made.text->setObjectName(QString("Text1_%1").arg(index));
    made.upDown->setObjectName(QString("UpDown1_%1").arg(index));
    return made;
}

void Place(const ValueControls& controls, QGridLayout& layout, int column) {
    layout.addWidget(controls.label, 0, 2 * column, 1, 2, Qt::AlignHCenter);
    layout.addWidget(controls.slider, 1, 2 * column, 1, 2, Qt::AlignHCenter);
    layout.addWidget(controls.text, 2, 2 * column);
    layout.addWidget(controls.upDown, 2, 2 * column + 1);
}

}  // namespace vxgui::qt6
