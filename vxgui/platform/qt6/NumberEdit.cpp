#include "vxgui/platform/qt6/NumberEdit.h"

#include <QKeyEvent>

namespace vxgui::qt6 {

void NumberEdit::keyPressEvent(QKeyEvent* event) {
    const QString text = event->text();
    const bool character = !text.isEmpty() && text[0].isPrint();
    const int caret = hasSelectedText() ? selectionStart() : cursorPosition();
    if (character && !allows(text[0].unicode(), caret)) return;
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
        return stepped(event->key() == Qt::Key_Up ? 1 : -1);
    }
    QLineEdit::keyPressEvent(event);
}

}  // namespace vxgui::qt6
