#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QStaticText>
#include <memory>

#include "bench/Beside.h"
#include "bench/text/Line.h"
#include "vxgui/pixels/Blur.h"

namespace vxgui::bench {
namespace {

// Fonts need an application, which needs no display.
void NeedApplication() {
    static int count = 1;
    static char name[] = "bench_text";
    static char* arguments[] = {name, nullptr};
    static QGuiApplication* const application = new QGuiApplication(count, arguments);
    benchmark::DoNotOptimize(application);
}

// An image that is painted on, with the painter kept.
struct Canvas {
    explicit Canvas(uint32_t ground)
        : image(kLineWidth, kLineHeight, QImage::Format_ARGB32_Premultiplied) {
        image.fill(ground);
        painter.begin(&image);
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(kLineEm);
        painter.setFont(font);
    }
    void Draw(uint32_t color) {
        painter.setPen(QColor::fromRgba(color));
        painter.drawText(kLineX, kLineY + kLineEm, text);
    }
    QImage image;
    QPainter painter;
    QString text = QString::fromLatin1(kLine);
};

auto Plain() {
    NeedApplication();
    auto canvas = std::make_shared<Canvas>(kLineGround);
    return [=] { canvas->Draw(kLineColor); };
}

// The shaped text is kept.
auto Static() {
    NeedApplication();
    auto canvas = std::make_shared<Canvas>(kLineGround);
    auto text = std::make_shared<QStaticText>(canvas->text);
    text->prepare(QTransform(), canvas->painter.font());
    return [=] {
        canvas->painter.setPen(QColor::fromRgba(kLineColor));
        canvas->painter.drawStaticText(kLineX, kLineY, *text);
    };
}

// The painter has no blur: the one it gets is ours, the best that a caller could have.
auto SoftShadow() {
    NeedApplication();
    auto canvas = std::make_shared<Canvas>(kLineGround);
    auto shadow = std::make_shared<Canvas>(0);
    return [=] {
        shadow->image.fill(0);
        shadow->Draw(0xFF000000);
        Blur({reinterpret_cast<ARGB*>(shadow->image.bits()),
              static_cast<size_t>(kLineWidth * kLineHeight)},
             kLineWidth, {0, 0, kLineWidth - 1, kLineHeight - 1}, GaussianKernel(kLineRadius),
             GaussianKernel(kLineRadius));
        canvas->painter.drawImage(0, 0, shadow->image);
        canvas->Draw(kLineColor);
    };
}

const bool kAdded = [] {
    Beside("text", "40", "qt", Plain);
    Beside("text", "40", "qt-static", Static);
    Beside("text-soft-shadow", "40", "qt", SoftShadow);
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
