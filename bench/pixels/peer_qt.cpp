#include <QtGui/QImage>
#include <QtGui/QPainter>

#include "bench/pixels/Works.h"

namespace vxgui::bench {
namespace {

/// An image over pixels of ours.
struct Image {
    Image(std::shared_ptr<Pixels> pixels, QImage::Format format)
        : pixels(std::move(pixels)),
          image(this->pixels->Bytes(), this->pixels->width, this->pixels->height,
                this->pixels->Stride(), format) {}
    std::shared_ptr<Pixels> pixels;
    QImage image;
};

/// A painter that is kept, with its opacity.
struct Canvas : Image {
    Canvas(int side, QImage::Format format, int alpha) : Image(Target(side), format) {
        painter.begin(&image);
        painter.setOpacity(alpha / 255.0);
    }
    ~Canvas() { painter.end(); }
    QPainter painter;
};

auto Draws(QImage::Format format, bool runs, int alpha, bool stretched) {
    return [=](int side) {
        return [=] {
            std::vector<uint32_t> words = StraightPicture(side, side, runs);
            if (format == QImage::Format_ARGB32_Premultiplied) words = Premultiplied(words);
            const int width = stretched ? Stretched(side) : side;
            return [=, source = std::make_shared<Image>(Square(side, words), format),
                    target = std::make_shared<Canvas>(width, format, alpha)] {
                target->painter.drawImage(QRect(0, 0, width, width), source->image);
            };
        };
    };
}

const bool kAdded = [] {
    constexpr auto kOver = QImage::Format_ARGB32_Premultiplied, kOpaque = QImage::Format_RGB32;
    AddSides("over", "qt", Draws(kOver, false, 255, false));
    AddSides("over-runs", "qt", Draws(kOver, true, 255, false));
    AddSides("over-constant", "qt", Draws(kOver, false, kOverConstant, false));
    AddSides("constant", "qt", Draws(kOpaque, false, kConstant, false));
    AddSides("copy", "qt", Draws(kOpaque, false, 255, false));
    AddSides("stretch", "qt", Draws(kOpaque, false, 255, true));
    return true;
}();

}  // namespace
}  // namespace vxgui::bench
