// A Qt 6 program whose buttons wear a skin: the library paints straight into a QImage's memory.
// Usage: qt6 SKIN ITEM [CAPTION [--screenshot FILE]]

#include "vxgui/vxgui.h"
// Qt's headers come last: its macros are many.
#include <QtWidgets>

using vxgui::Ref, vxgui::ThemeItem;
namespace gdi = vxgui::gdi;

namespace {

constexpr int kMargin = 20;
const QColor kGround(0xE8, 0xEC, 0xF1);

/// A push button that looks as an item of a skin does.
class SkinButton : public QAbstractButton {
public:
    SkinButton(Ref<ThemeItem> item, const QString& caption) : item_(std::move(item)) {
        setText(caption);
        setAttribute(Qt::WA_Hover);  // a repaint when the mouse comes and goes
        setFocusPolicy(Qt::StrongFocus);
    }
    QSize sizeHint() const override { return {120, 34}; }

protected:
    void paintEvent(QPaintEvent*) override {
        QImage image(size(), QImage::Format_RGB32);
        image.fill(palette().color(QPalette::Window));
        const gdi::HDC dc = gdi::CreateHostDC(
            {image.bits(), image.width(), image.height(), image.bytesPerLine(), false});
        item_->State(CurrentState());
        item_->DrawBackground(dc, 0, 0, width(), height(), -1, -1);
        int32_t right = width(), bottom = height();
        item_->DrawText(dc, text().toStdString(), gdi::DT_SINGLELINE, -1, 0, 0, right, bottom);
        gdi::DeleteDC(dc);
        QPainter(this).drawImage(0, 0, image);
    }

private:
    int32_t CurrentState() const {
        if (!isEnabled()) return vxgui::E_ItemStateDisabled;
        if (isDown()) return vxgui::E_ItemStatePressed;
        if (underMouse()) return vxgui::E_ItemStateMouseOver;
        return hasFocus() ? vxgui::E_ItemStateFocus : vxgui::E_ItemStateNormal;
    }

    const Ref<ThemeItem> item_;
};

int Show(const QStringList& arguments) {
    const vxgui::Skin skin = vxgui::LoadSkin(arguments[1].toStdString());
    QWidget window;
    window.setPalette(QPalette(kGround));
    window.setWindowTitle("VxGUI in Qt 6");
    auto* button = new SkinButton(vxgui::FindItem(skin, arguments[2].toStdString()),
                                  arguments.value(3, arguments[2]));
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    auto* layout = new QVBoxLayout(&window);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(button);
    window.resize(window.sizeHint());
    QObject::connect(button, &QAbstractButton::clicked,
                     [] { std::puts("clicked"), std::fflush(stdout); });
    if (arguments.value(4) == "--screenshot")
        return window.grab().toImage().save(arguments.value(5)) ? 0 : 1;
    window.show();
    return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) try {
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() < 3) {
        std::fputs("usage: qt6 SKIN ITEM [CAPTION [--screenshot FILE]]\n", stderr);
        return 2;
    }
    vxgui::Global();  // sets the calling thread's apartment up
    return Show(arguments);
} catch (const vxgui::Error& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
}
