#pragma once

#include <QWidget>
#include <functional>

namespace vxgui::qt6 {

/// Two small arrow buttons, one over the other, and the number that they change.
class UpDown final : public QWidget {
public:
    explicit UpDown(QWidget* parent);

    void SetRange(int min, int max);
    /// Kept to the range; tells of a change.
    void SetValue(int value);
    int Value() const { return value_; }
    void Step(int by) { stepped ? stepped(by) : SetValue(value_ + by); }

    std::function<void(int)> changed;
    std::function<void(int)> stepped;  ///< instead of changing the number

private:
    void AddButton(Qt::ArrowType arrow, const char* name, int by);

    int min_ = 0, max_ = 0, value_ = 0;
};

}  // namespace vxgui::qt6
