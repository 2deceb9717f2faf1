#include "tools/view/window/ViewerWindow.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QScrollArea>
#include <QShortcut>
#include <QSplitter>
#include <QVBoxLayout>
#include <algorithm>
#include <chrono>

#include "tools/view/window/QtPixels.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/theme/ItemLook.h"

namespace vxgui::view {
namespace {

constexpr int kLookEvery = 80;  // milliseconds

SkinWatch::Time Now() {
    return std::chrono::duration_cast<SkinWatch::Time>(
        std::chrono::steady_clock::now().time_since_epoch());
}

}  // namespace

ViewerWindow::ViewerWindow(const tool::ViewOptions& options)
    : skin_(options.skin),
      items_(new ItemList),
      stage_(new StagePanel),
      state_(new StatePanel),
      size_(new SizePanel),
      facts_(new FactsPanel),
      picker_(new PickerPanel),
      recolour_(new RecolourPanel),
      messages_(new MessageList) {
    Arrange();
    Connect();
    Read(true);
    Apply(options);
    connect(&looking_, &QTimer::timeout, this, [this] { LookForChanges(); });
    looking_.start(kLookEvery);
}

// A stage that goes loses the focus first, and would tell panels that have gone already.
ViewerWindow::~ViewerWindow() {
    Stage().stateChanged = nullptr;
    items_->disconnect(this);
}

void ViewerWindow::Arrange() {
    auto* const upper = new QSplitter(Qt::Horizontal);
    upper->addWidget(NewItemColumn());
    upper->addWidget(stage_);
    upper->addWidget(NewInspector());
    upper->setStretchFactor(1, 1);
    upper->setSizes({230, 640, 280});
    auto* const whole = new QSplitter(Qt::Vertical);
    whole->addWidget(upper);
    whole->addWidget(messages_);
    whole->setStretchFactor(0, 1);
    whole->setSizes({730, 90});
    whole->setContentsMargins(6, 6, 6, 6);
    setCentralWidget(whole);
    resize(1200, 840);
    items_->setFocus();
}

QWidget* ViewerWindow::NewItemColumn() {
    auto* const filter = new QLineEdit;
    filter->setObjectName("filter");
    filter->setPlaceholderText("Filter items");
    filter->setClearButtonEnabled(true);
    connect(filter, &QLineEdit::textChanged, items_, &ItemList::Filter);
    auto* const column = new QWidget;
    auto* const rows = new QVBoxLayout(column);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(filter);
    rows->addWidget(items_, 1);
    return column;
}

QWidget* ViewerWindow::NewInspector() {
    auto* const inside = new QWidget;
    auto* const rows = new QVBoxLayout(inside);
    rows->setContentsMargins(4, 0, 4, 0);
    for (QWidget* const panel :
         std::initializer_list<QWidget*>{state_, size_, facts_, picker_, recolour_})
        rows->addWidget(panel);
    rows->addStretch(1);
    auto* const scroll = new QScrollArea;
    scroll->setWidget(inside);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setMinimumWidth(280);
    return scroll;
}

void ViewerWindow::Connect() {
    connect(items_, &ItemList::currentRowChanged, this, [this] { ShowChosen(); });
    Stage().stateChanged = [this] {
        state_->Tell(Stage().Shown().state);
        facts_->Tell(Stage().Shown());
    };
    Stage().sizeChanged = [this] { size_->Tell(Stage().Shown().size); };
    Stage().picked = [this](const PickedPixel& pixel) { picker_->Tell(pixel); };
    state_->changed = [this](const auto& change) { Stage().Change(change); };
    size_->changed = [this](gdi::SIZE size) { Stage().ItemSize(size); };
    size_->ownSizeWanted = [this] {
        if (Stage().Shown().item) Stage().ItemSize(OwnSize(*Stage().Shown().item));
    };
    recolour_->changed = [this](const Recolour& colours) { Take(colours); };
    recolour_->saveWanted = [this] { AskWhereToSave(); };
    state_->Tell(Stage().Shown().state);
    connect(new QShortcut(QKeySequence(QKeySequence::Quit), this), &QShortcut::activated, this,
            &QWidget::close);
}

void ViewerWindow::Apply(const tool::ViewOptions& options) {
    if (!options.item.empty() && !items_->Choose(QtText(options.item)) && skin_.Get())
        FindItem(*skin_.Get(), options.item);  // which says what items there are
    if (options.captioned) stage_->TypeCaption(QtText(options.caption));
    if (!options.background.empty()) Stage().Background(GroundOf(options.background));
    Stage().Factor(options.zoom);
    stage_->Tools().ShowMargins(options.margins);
}

void ViewerWindow::LookForChanges() {
    if (const SkinWatch::Change change = watch_.Look(Now())) Read(change.pictures);
}

// The files are stamped before they are read, so that a change in between isn't missed.
void ViewerWindow::Read(bool picturesChanged) {
    watch_.Watch(FilesOfSkin(skin_.Path()));
    const bool fresh = skin_.Reload(picturesChanged);
    messages_->Tell(skin_);
    setWindowTitle(QFileInfo(QtText(skin_.Path())).fileName() + " \u2013 " + SummaryOf(skin_) +
                   " \u2013 VxGUI");
    recolour_->setEnabled(skin_.Get() != nullptr);
    if (fresh) ShowSkin();
    if (read) read(skin_);
}

void ViewerWindow::Take(const Recolour& colours) {
    if (skin_.Colours(colours))
        ShowSkin();
    else
        messages_->Tell(skin_);
}

void ViewerWindow::ShowSkin() {
    items_->Fill(*skin_.Get());
    ShowChosen();
}

void ViewerWindow::AskWhereToSave() {
    const QString folder =
        QFileDialog::getSaveFileName(this, "Folder of the new skin", QString(), QString(), nullptr,
                                     QFileDialog::DontConfirmOverwrite | QFileDialog::ShowDirsOnly);
    if (!folder.isEmpty()) Save(folder);
}

void ViewerWindow::Save(const QString& folder) try {
    const std::string path = skin_.Save(folder.toStdString());
    messages_->Say("saved as " + QtText(path));
} catch (const std::exception& error) {
    QMessageBox::warning(this, "Save as new skin", QtText(std::string(error.what())));
}

gdi::SIZE ViewerWindow::FirstSizeOf(const SkinItem& item) const {
    const gdi::SIZE own = OwnSize(*item.item);
    if (item.caption.empty()) return own;
    return {std::max(own.cx, 120), std::max(own.cy, 28)};
}

// An item that is shown already keeps the size that it was given.
void ViewerWindow::ShowChosen() {
    const int row = items_->Chosen();
    if (!skin_.Get() || row < 0) return;
    const SkinItem& item = skin_.Get()->items[static_cast<size_t>(row)];
    const bool same = row == chosen_;
    chosen_ = row;
    Stage().Show(item.item, item.caption, same ? Stage().Shown().size : FirstSizeOf(item));
    stage_->OfferCaption(item.caption);
    size_->Tell(Stage().Shown().size);
    facts_->Tell(Stage().Shown());
}

}  // namespace vxgui::view
