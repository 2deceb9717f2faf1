#include "tools/view/window/MessageList.h"

#include <QFontDatabase>
#include <QVBoxLayout>

#include "tools/view/window/QtPixels.h"

namespace vxgui::view {
namespace {

const QColor kError(186, 26, 26);
const QColor kWarning(150, 96, 0);

QString Counted(size_t count, const char* what) {
    return QString("%1 %2%3").arg(count).arg(what).arg(count == 1 ? "" : "s");
}

QString HeadlineOf(const LastGoodSkin& skin) {
    const QString summary = SummaryOf(skin);
    if (skin.IsCurrent()) return summary;
    return summary + (skin.Get() ? " \u2014 the last good skin stays on the screen until it can be "
                                   "read again"
                                 : " \u2014 nothing can be shown until it can be read");
}

}  // namespace

QString SummaryOf(const LastGoodSkin& skin) {
    const size_t errors = skin.ErrorCount(), warnings = skin.Messages().size() - errors;
    if (errors + warnings == 0) return "no problems";
    return Counted(errors, "error") + ", " + Counted(warnings, "warning");
}

MessageList::MessageList(QWidget* parent)
    : QWidget(parent), headline_(new QLabel), lines_(new QListWidget) {
    headline_->setObjectName("headline");
    lines_->setObjectName("messages");
    lines_->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(headline_);
    column->addWidget(lines_, 1);
}

void MessageList::Tell(const LastGoodSkin& skin) {
    Say(HeadlineOf(skin));
    lines_->clear();
    for (const SkinMessage& message : skin.Messages()) {
        auto* const line = new QListWidgetItem(QtText(message.text), lines_);
        line->setForeground(message.isError ? kError : kWarning);
    }
}

void MessageList::Say(const QString& text) {
    headline_->setText("<b>Messages:</b> " + text.toHtmlEscaped());
}

}  // namespace vxgui::view
