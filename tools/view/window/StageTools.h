#pragma once

#include <QComboBox>
#include <QToolBar>

#include "tools/view/window/StageView.h"

namespace vxgui::view {

/// The tools above the stage: zoom, pixel grid, margins, background.
class StageTools : public QToolBar {
public:
    StageTools(StageView& stage, QWidget* parent = nullptr);

    void ShowMargins(bool shown) { margins_->setChecked(shown); }
    /// As `GroundOf` takes it; a box says what is wrong with it.
    void Background(const QString& text);

private:
    void AddZoom();
    void AddOverlays();
    void AddBackgrounds();
    void AskForBackground(int row);

    StageView& stage_;
    QAction* margins_ = nullptr;
    QComboBox* backgrounds_ = nullptr;
};

}  // namespace vxgui::view
