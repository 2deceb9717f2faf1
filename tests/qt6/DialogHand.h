#pragma once

#include <QApplication>
#include <QTest>
#include <QTimer>
#include <functional>

namespace vxgui::test {

/// A hand on the modal window that is shown next: `act` gets it once it is there.
template <class Window>
void WhenShown(std::function<void(Window&)> act) {
    QTimer::singleShot(0, qApp, [act = std::move(act)] {
        auto* const window = qobject_cast<Window*>(QApplication::activeModalWidget());
        if (!window) return WhenShown<Window>(act);
        act(*window);
    });
}

/// A control of a window by its name.
template <class Widget>
Widget& Control(QWidget& window, const char* name) {
    auto* const found = window.findChild<Widget*>(name);
    if (!found) qFatal("no control %s", name);
    return *found;
}

}  // namespace vxgui::test
