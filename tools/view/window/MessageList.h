#pragma once

#include <QLabel>
#include <QListWidget>

#include "tools/view/LastGoodSkin.h"

namespace vxgui::view {

/// What is wrong with the skin, line by line, under a headline.
class MessageList : public QWidget {
public:
    explicit MessageList(QWidget* parent = nullptr);

    void Tell(const LastGoodSkin& skin);
    /// Puts something else into the headline until the skin is read again.
    void Say(const QString& text);

private:
    QLabel* headline_;
    QListWidget* lines_;
};

/// "2 errors, 1 warning", or "no problems".
QString SummaryOf(const LastGoodSkin& skin);

}  // namespace vxgui::view
