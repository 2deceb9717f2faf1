#pragma once

#include <QGroupBox>
#include <QLabel>

#include "tools/view/PickedPixel.h"

namespace vxgui::view {

/// The colour under the mouse.
class PickerPanel : public QGroupBox {
public:
    explicit PickerPanel(QWidget* parent = nullptr);

    void Tell(const PickedPixel& pixel);

private:
    QLabel* swatch_;
    QLabel* place_;
    QLabel* hex_;
    QLabel* bgra_;
};

}  // namespace vxgui::view
