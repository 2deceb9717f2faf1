#pragma once

#include <QLineEdit>
#include <optional>

#include "tools/view/window/StageTools.h"

namespace vxgui::view {

/// The stage between its tools and the line for the caption.
class StagePanel : public QWidget {
public:
    explicit StagePanel(QWidget* parent = nullptr);

    StageView& Stage() { return *stage_; }
    StageTools& Tools() { return *tools_; }
    /// The item's own caption, until one is typed.
    void OfferCaption(const String& caption);
    void TypeCaption(const QString& caption);

private:
    StageView* stage_;
    StageTools* tools_;
    QLineEdit* caption_;
    bool typed_ = false;
};

}  // namespace vxgui::view
