#include "tools/view/window/StatePanel.h"

#include <QVBoxLayout>

#include "tools/view/window/QtPixels.h"
#include "vxgui/theme/ThemeItem.h"

namespace vxgui::view {

StatePanel::StatePanel(QWidget* parent)
    : QGroupBox("State", parent),
      held_(new QComboBox),
      disabled_(new QCheckBox("Disabled")),
      default_(new QCheckBox("Default button")) {
    held_->setObjectName("heldState");
    disabled_->setObjectName("disabled");
    default_->setObjectName("default");
    held_->addItem("Live");
    for (int32_t state = 0; state < E_ItemStateMax; ++state)
        held_->addItem(QtText(ThemeItem::StateName(state)));
    held_->setToolTip("Live follows mouse and keys; any other state is held");
    auto* const rows = new QVBoxLayout(this);
    rows->addWidget(held_);
    rows->addWidget(disabled_);
    rows->addWidget(default_);
    connect(held_, &QComboBox::currentIndexChanged, this, [this](int row) { Hold(row); });
    connect(disabled_, &QCheckBox::toggled, this,
            [this](bool on) { changed([on](ViewedItem& control) { control.Enable(!on); }); });
    connect(default_, &QCheckBox::toggled, this,
            [this](bool on) { changed([on](ViewedItem& control) { control.MakeDefault(on); }); });
}

void StatePanel::Hold(int row) {
    const std::optional<int32_t> state = row > 0 ? std::optional(row - 1) : std::nullopt;
    changed([state](ViewedItem& control) { control.Hold(state); });
    disabled_->setEnabled(!state);
    default_->setEnabled(!state);
}

void StatePanel::Tell(int32_t state) {
    held_->setItemText(0, "Live: " + QtText(ThemeItem::StateName(state)));
}

}  // namespace vxgui::view
