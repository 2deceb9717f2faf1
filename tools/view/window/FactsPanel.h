#pragma once

#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>

#include "tools/view/ItemFacts.h"

namespace vxgui::view {

/// What the item is made of, and its main colours.
class FactsPanel : public QGroupBox {
public:
    explicit FactsPanel(QWidget* parent = nullptr);

    void Tell(const ShownItem& shown);

private:
    QFormLayout* rows_;
    QLabel* colours_;
};

}  // namespace vxgui::view
