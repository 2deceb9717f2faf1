#pragma once

#include <QGroupBox>
#include <QSpinBox>
#include <functional>

#include "vxgui/platform/gdi_types.h"

namespace vxgui::view {

/// How large the item is painted, in numbers.
class SizePanel : public QGroupBox {
public:
    explicit SizePanel(QWidget* parent = nullptr);

    void Tell(gdi::SIZE size);

    std::function<void(gdi::SIZE)> changed;
    std::function<void()> ownSizeWanted;

private:
    QSpinBox* width_;
    QSpinBox* height_;
};

}  // namespace vxgui::view
