#include "tools/view/window/StageTools.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>

namespace vxgui::view {
namespace {

struct Choice {
    const char* name;
    const char* ground;  ///< empty: the user is asked
};
constexpr Choice kBackgrounds[] = {{"Checks", "checks"},  {"White", "#FFFFFF"},
                                   {"Grey", "#808080"},   {"Black", "#000000"},
                                   {"Colour \u2026", ""}, {"Picture \u2026", ""}};
constexpr int kColourRow = 4;

}  // namespace

StageTools::StageTools(StageView& stage, QWidget* parent) : QToolBar(parent), stage_(stage) {
    setMovable(false);
    AddZoom();
    addSeparator();
    AddOverlays();
    addSeparator();
    AddBackgrounds();
}

void StageTools::AddZoom() {
    QAction* const out = addAction("\u2212", [this] { stage_.ZoomOut(); });
    out->setToolTip("Zoom out (Ctrl+-)");
    out->setShortcut(QKeySequence::ZoomOut);
    auto* const factor = new QLabel("1\u00D7");
    factor->setObjectName("factor");
    factor->setMinimumWidth(32);
    factor->setAlignment(Qt::AlignCenter);
    addWidget(factor);
    QAction* const in = addAction("+", [this] { stage_.ZoomIn(); });
    in->setToolTip("Zoom in (Ctrl++)");
    in->setShortcuts({QKeySequence(QKeySequence::ZoomIn), QKeySequence("Ctrl+=")});
    stage_.zoomChanged = [this, factor] {
        factor->setText(QString::number(stage_.Factor()) + "\u00D7");
    };
}

void StageTools::AddOverlays() {
    QAction* const grid = addAction("Grid");
    grid->setObjectName("grid");
    grid->setCheckable(true);
    grid->setChecked(true);
    grid->setShortcut(QKeySequence("Ctrl+G"));
    grid->setToolTip("Lines between the pixels, from 6\u00D7 on (Ctrl+G)");
    connect(grid, &QAction::toggled, this, [this](bool on) { stage_.ShowGrid(on); });
    margins_ = addAction("Margins");
    margins_->setObjectName("margins");
    margins_->setCheckable(true);
    margins_->setShortcut(QKeySequence("Ctrl+M"));
    margins_->setToolTip("Where the nine pieces are cut, and the room for the caption (Ctrl+M)");
    connect(margins_, &QAction::toggled, this, [this](bool on) { stage_.ShowMargins(on); });
}

void StageTools::AddBackgrounds() {
    addWidget(new QLabel(" Background "));
    backgrounds_ = new QComboBox;
    backgrounds_->setObjectName("background");
    for (const Choice& choice : kBackgrounds) backgrounds_->addItem(choice.name);
    addWidget(backgrounds_);
    connect(backgrounds_, &QComboBox::activated, this, [this](int row) {
        *kBackgrounds[row].ground ? Background(kBackgrounds[row].ground) : AskForBackground(row);
    });
}

void StageTools::AskForBackground(int row) {
    if (row == kColourRow) {
        const QColor colour = QColorDialog::getColor(Qt::white, this);
        if (colour.isValid()) Background(colour.name());
        return;
    }
    const QString file = QFileDialog::getOpenFileName(
        this, "Background picture", {}, "Pictures (*.bmp *.png *.jpg *.jpeg *.gif *.tga *.tif)");
    if (!file.isEmpty()) Background(file);
}

void StageTools::Background(const QString& text) try {
    stage_.Background(GroundOf(text.toStdString()));
} catch (const std::exception& error) {
    QMessageBox::warning(this, "Background", QString::fromStdString(error.what()));
}

}  // namespace vxgui::view
