#pragma once

#include <QLineEdit>
#include <functional>

namespace vxgui::qt6 {

/// A text box that asks about each character; its up and down keys step.
class NumberEdit final : public QLineEdit {
public:
    using QLineEdit::QLineEdit;

    std::function<bool(char16_t key, int caret)> allows;
    std::function<void(int)> stepped;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace vxgui::qt6
