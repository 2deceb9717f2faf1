#include "tools/view/window/StagePanel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QScrollArea>
#include <QShortcut>
#include <QVBoxLayout>

namespace vxgui::view {
namespace {

String TextIn(const QLineEdit& line) { return line.text().toStdU16String(); }

}  // namespace

StagePanel::StagePanel(QWidget* parent)
    : QWidget(parent),
      stage_(new StageView),
      tools_(new StageTools(*stage_)),
      caption_(new QLineEdit) {
    auto* const scroll = new QScrollArea;
    scroll->setWidget(stage_);
    scroll->setWidgetResizable(true);
    caption_->setObjectName("caption");
    caption_->setPlaceholderText("no caption");
    caption_->setClearButtonEnabled(true);
    auto* const label = new QLabel("&Caption");
    label->setBuddy(caption_);
    auto* const line = new QHBoxLayout;
    line->addWidget(label);
    line->addWidget(caption_, 1);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(tools_);
    column->addWidget(scroll, 1);
    column->addLayout(line);
    connect(caption_, &QLineEdit::textEdited, this, [this] {
        typed_ = true;
        stage_->Caption(TextIn(*caption_));
    });
    auto* const edit = new QShortcut(QKeySequence("F2"), this);
    connect(edit, &QShortcut::activated, this, [this] {
        caption_->setFocus();
        caption_->selectAll();
    });
    caption_->setToolTip("The text of the control (F2)");
}

void StagePanel::OfferCaption(const String& caption) {
    if (!typed_) caption_->setText(QString::fromStdU16String(caption.units()));
    stage_->Caption(TextIn(*caption_));
}

void StagePanel::TypeCaption(const QString& caption) {
    typed_ = true;
    caption_->setText(caption);
    stage_->Caption(TextIn(*caption_));
}

}  // namespace vxgui::view
