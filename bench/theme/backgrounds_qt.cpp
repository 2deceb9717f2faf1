#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtGui/QPixmap>
#include <QtWidgets/qdrawutil.h>

#include "bench/Beside.h"
#include "bench/theme/Frame.h"

namespace vxgui::bench {
namespace {

// Pixmaps need an application, which needs no display.
void NeedApplication() {
    static int count = 1;
    static char name[] = "bench_theme";
    static char* arguments[] = {name, nullptr};
    static QGuiApplication* const application = new QGuiApplication(count, arguments);
    benchmark::DoNotOptimize(application);
}

QPixmap FramePixmap() {
    std::vector<uint32_t> words = StraightPicture(kFrame, kFrame, false);
    Premultiply({reinterpret_cast<ARGB*>(words.data()), words.size()});
    const QImage image(reinterpret_cast<const uchar*>(words.data()), kFrame, kFrame, kFrame * 4,
                       QImage::Format_ARGB32_Premultiplied);
    return QPixmap::fromImage(image.copy());
}

// An image that is painted on, with the painter kept.
struct Canvas {
    Canvas() : image(kTarget.width, kTarget.height, QImage::Format_ARGB32_Premultiplied) {
        image.fill(kGround);
        painter.begin(&image);
    }
    QImage image;
    QPainter painter;
};

auto DrawsBorder(Size size, Qt::TileRule rule) {
    return [=] {
        NeedApplication();
        auto canvas = std::make_shared<Canvas>();
        const QPixmap frame = FramePixmap();
        return [=] {
            const QMargins margins(kMargin, kMargin, kMargin, kMargin);
            qDrawBorderPixmap(&canvas->painter, QRect(kLeft, kTop, size.width, size.height),
                              margins, frame, frame.rect(), margins, QTileRules(rule, rule));
        };
    };
}

// The nine pieces cut once, each then a pixmap of its own: the corners drawn, all else tiled.
class TiledPieces {
public:
    explicit TiledPieces(Size size)
        : across_{{0, kMargin}, {kMargin, kFrame - 2 * kMargin}, {kFrame - kMargin, kMargin}},
          x_{kLeft, kLeft + kMargin, kLeft + size.width - kMargin, kLeft + size.width},
          y_{kTop, kTop + kMargin, kTop + size.height - kMargin, kTop + size.height} {
        const QPixmap frame = FramePixmap();
        for (int i = 0; i < 9; ++i) {
            const Run x = across_[i % 3], y = across_[i / 3];
            pieces_[i] = frame.copy(x.start, y.start, x.size, y.size);
        }
    }
    void Draw(QPainter& painter) const {
        for (int i = 0; i < 9; ++i) {
            const int column = i % 3, row = i / 3;
            const QRect to(QPoint(x_[column], y_[row]),
                           QPoint(x_[column + 1] - 1, y_[row + 1] - 1));
            if (column != 1 && row != 1) {
                painter.drawPixmap(to.topLeft(), pieces_[i]);
            } else {
                painter.drawTiledPixmap(to, pieces_[i]);
            }
        }
    }

private:
    struct Run {
        int start, size;
    };
    Run across_[3];
    int x_[4], y_[4];
    QPixmap pieces_[9];
};

auto DrawsTiled(Size size) {
    return [=] {
        NeedApplication();
        auto canvas = std::make_shared<Canvas>();
        auto pieces = std::make_shared<TiledPieces>(size);
        return [=] { pieces->Draw(canvas->painter); };
    };
}

const bool kAdded = [] {
    for (const Size size : kSizes) {
        Beside("background-stretched", size.Name(), "qt-border",
               DrawsBorder(size, Qt::StretchTile));
        Beside("background-tiled", size.Name(), "qt-border", DrawsBorder(size, Qt::RepeatTile));
        Beside("background-tiled", size.Name(), "qt-tiled", DrawsTiled(size));
    }
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
