#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <functional>
#include <optional>

#include "tools/view/ViewedItem.h"

namespace vxgui::view {

/// What state the control shows: one that follows mouse and keys, or one that is held.
class StatePanel : public QGroupBox {
public:
    explicit StatePanel(QWidget* parent = nullptr);

    /// The state that is shown now.
    void Tell(int32_t state);

    std::function<void(std::function<void(ViewedItem&)>)> changed;

private:
    void Hold(int row);

    QComboBox* held_;
    QCheckBox* disabled_;
    QCheckBox* default_;
};

}  // namespace vxgui::view
