#pragma once

#include <QGroupBox>
#include <QPushButton>
#include <QSlider>
#include <QTimer>
#include <functional>

#include "tools/view/recolour/Recolour.h"

namespace vxgui::view {

/// Hue, saturation and lightness for the whole skin.
class RecolourPanel : public QGroupBox {
public:
    explicit RecolourPanel(QWidget* parent = nullptr);

    Recolour Value() const;

    /// Told a moment after the last of several quick steps.
    std::function<void(const Recolour&)> changed;
    std::function<void()> saveWanted;

private:
    QSlider* NewSlider(const char* name, int most);
    void Reset();
    void Tell();

    QSlider* hue_;
    QSlider* saturation_;
    QSlider* lightness_;
    QPushButton* reset_;
    QPushButton* save_;
    QTimer pause_;
};

}  // namespace vxgui::view
