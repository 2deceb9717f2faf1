#include <CLI/CLI.hpp>
#include <QApplication>
#include <QStyleFactory>
#include <iostream>

#include "tools/view/window/ViewerWindow.h"
#include "vxgui/platform/forms.h"
#include "vxgui/platform/qt6/QtDisplay.h"

namespace vxgui::view {
namespace {

int Shoot(ViewerWindow& window, const std::string& path) {
    window.show();
    QApplication::processEvents();
    if (window.grab().save(QString::fromStdString(path), "PNG")) return 0;
    std::cerr << path << ": error: can't be written\n";
    return 1;
}

// In the terminal too, where an editor finds lines with a place.
void Print(const LastGoodSkin& skin) {
    for (const SkinMessage& message : skin.Messages()) std::cerr << message.text << "\n";
    std::cerr << SummaryOf(skin).toStdString() << std::endl;
}

int Show(const tool::ViewOptions& options, int argc, char** argv) {
    std::string reason;
    if (!qt6::DisplayAnswers(&reason)) throw std::runtime_error(reason);
    const QApplication application(argc, argv);
    // A skin that can't be read is told of in the window; boxes would come again with each edit.
    forms::SetToolkit(nullptr);
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    ViewerWindow window(options);
    if (!options.screenshot.empty()) return Shoot(window, options.screenshot);
    Print(window.Source());
    window.read = Print;
    window.show();
    return QApplication::exec();
}

}  // namespace
}  // namespace vxgui::view

int main(int argc, char** argv) {
    vxgui::tool::ViewOptions options;
    CLI::App app("Shows the items of a skin as live controls.", "vxgui view");
    vxgui::tool::AddViewOptions(app, options);
    try {
        app.parse(argc, argv);
        return vxgui::view::Show(options, argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : 2;
    } catch (const std::exception& error) {
        std::cerr << "vxgui view: " << error.what() << "\n";
        return 1;
    }
}
