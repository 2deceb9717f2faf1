#include <gtest/gtest.h>

#include "Canvas.h"
#include "tests/support/Golden.h"

namespace vxgui::gdi {
namespace {

test::TestPicture PictureOf(const Canvas& canvas) {
    test::TestPicture picture;
    picture.width = canvas.Width();
    picture.height = canvas.Height();
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) {
            picture.pixels.push_back(0xFF000000 | canvas.Color(x, y));
        }
    }
    return picture;
}

/// Versions of the hinter differ by a shade at an edge.
constexpr int kHinterTolerance = 48;

TEST(TextPicture, OfScriptsAndFaces) {
    Canvas canvas(260, 120);
    const char* faces[] = {"DejaVu Sans", "DejaVu Serif", "DejaVu Sans Mono"};
    for (int i = 0; i < 3; ++i) {
        canvas.Font(faces[i], -14, i == 1 ? 700 : 400);
        RECT rect{8, 6 + 22 * i, 252, 28 + 22 * i};
        Draw(canvas, u"&Text \u4E2D\u6587 \u0633\u0644\u0627\u0645 \u0E44\u0E17\u0E22 \u00C5\u0304",
             rect, 0);
    }
    LOGFONTA mono = LogFont("DejaVu Sans", -13);
    mono.lfQuality = 3;
    canvas.Font(mono);
    RECT rect{8, 74, 130, 116};
    Draw(canvas, u"Not smoothed, and wrapped at the spaces", rect, DT_WORDBREAK | DT_CENTER);
    test::ExpectGolden("gdi_text_scripts", PictureOf(canvas), kHinterTolerance);
}

TEST(TextPicture, OfTurnedLines) {
    Canvas canvas(200, 200);
    LOGFONTA font = LogFont("DejaVu Sans", -15);
    font.lfUnderline = font.lfItalic = 1;
    SetBkMode(canvas, OPAQUE);
    SetBkColor(canvas, RGB(220, 235, 255));
    for (int angle = 0; angle < 3600; angle += 450) {
        font.lfEscapement = angle;
        canvas.Font(font);
        TextOutW(canvas, 100, 100, u"    Turned", 10);
    }
    test::ExpectGolden("gdi_text_turned", PictureOf(canvas), kHinterTolerance);
}

}  // namespace
}  // namespace vxgui::gdi
