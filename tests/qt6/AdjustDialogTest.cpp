#include <gtest/gtest.h>
#include <malloc.h>

#include <QCheckBox>
#include <QDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QToolButton>

#include "generated/Places.h"
#include "tests/qt6/DialogHand.h"
#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {
namespace {

using test::Control;
using test::WhenShown;

/// A picture with gradients over all hues, larger than a pane.
Ref<cAlphaDIBSection> Picture() {
    auto surface = New<cAlphaDIBSection>();
    surface->Create(400, 300);
    const auto rows = surface->GetARGBArray();
    for (int32_t y = 0; y < 300; ++y) {
        const std::span<ARGB> row = rows.Run(y, 0, 399);
        for (size_t x = 0; x < 400; ++x) {
            row[x] = {static_cast<uint8_t>(x * 255 / 399), static_cast<uint8_t>(y * 255 / 299),
                      static_cast<uint8_t>(255 - x * 255 / 399), 255};
        }
    }
    return surface;
}

ByteArray Bytes(cAlphaDIBSection& surface) {
    ByteArray bytes;
    surface.ToByteArray(bytes, 0);
    return bytes;
}

class RealDialog : public testing::Test {
protected:
    bool Show(std::function<void(QDialog&)> hand) {
        WhenShown<QDialog>(std::move(hand));
        return surface_->ShowAdjustHLS();
    }
    static void Click(QDialog& dialog, const char* name) {
        QTest::mouseClick(&Control<QPushButton>(dialog, name), Qt::LeftButton);
    }
    static void Type(QDialog& dialog, const char* name, const char* text) {
        auto& box = Control<QLineEdit>(dialog, name);
        box.setFocus();
        box.selectAll();
        QTest::keyClicks(&box, text);
    }
    static void Zoom(QDialog& dialog, const char* button) {
        auto& steps = Control<QWidget>(dialog, "UpDown2");
        Control<QToolButton>(steps, button).click();
    }
    ByteArray Adjusted(float hue, float luminance, float saturation, bool colourize) const {
        const auto copy = Picture();
        copy->AdjustHLS(hue, luminance, saturation, colourize);
        return Bytes(*copy);
    }

    Ref<cAlphaDIBSection> surface_ = Picture();
    const ByteArray before_ = Bytes(*surface_);
};

TEST_F(RealDialog, HasItsTitleLabelsAndScreenshot) {
    Show([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QString::fromUtf16(u"色彩调整 色调、饱和度、亮度"));
        for (const QLabel* label : dialog.findChildren<QLabel*>()) {
            if (label->buddy()) {
                EXPECT_EQ(label->buddy()->accessibleName(), label->text());
            }
        }
        Type(dialog, "Text1_0", "40");
        Control<QCheckBox>(dialog, "chkPreview").click();
        QDir().mkpath(VXGUI_TEST_OUTPUT_DIR);
        EXPECT_TRUE(dialog.grab().save(VXGUI_TEST_OUTPUT_DIR "/adjust-dialog.png"));
        Click(dialog, "cmdCancel");
    });
}

TEST_F(RealDialog, DraggingASliderThenOkAdjustsThePixels) {
    int32_t hue = 0;
    EXPECT_TRUE(Show([&](QDialog& dialog) {
        auto& slider = Control<QSlider>(dialog, "Slider1_0");
        const QPoint middle = slider.rect().center();
        QTest::mousePress(&slider, Qt::LeftButton, {}, middle);
        QTest::mouseMove(&slider, middle + QPoint(0, 40));
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, middle + QPoint(0, 40));
        hue = slider.value();
        EXPECT_GT(hue, 0);
        EXPECT_EQ(Control<QLineEdit>(dialog, "Text1_0").text(), QString::number(hue));
        Click(dialog, "cmdOk");
    }));
    EXPECT_EQ(Bytes(*surface_), Adjusted(static_cast<float>(hue), 0, 0, false));
}

TEST_F(RealDialog, CancelBringsThePixelsBack) {
    EXPECT_FALSE(Show([&](QDialog& dialog) {
        Control<QCheckBox>(dialog, "chkPreview").click();
        Type(dialog, "Text1_2", "100");
        QTest::qWait(700);  // past the pause, so that the preview has run
        EXPECT_NE(Bytes(*surface_), before_);
        Click(dialog, "cmdCancel");
    }));
    EXPECT_EQ(Bytes(*surface_), before_);
}

TEST_F(RealDialog, TheBoxTakesNumbersAlone) {
    Show([](QDialog& dialog) {
        auto& box = Control<QLineEdit>(dialog, "Text1_1");
        Type(dialog, "Text1_1", "-");
        EXPECT_EQ(box.text(), "-");
        Type(dialog, "Text1_1", "abc");
        EXPECT_EQ(box.text(), "-");  // every letter was dropped
        Type(dialog, "Text1_1", "500");
        EXPECT_EQ(box.text(), "100");
        EXPECT_EQ(Control<QSlider>(dialog, "Slider1_1").value(), -100);
        QTest::keyClick(&box, Qt::Key_Backspace);
        EXPECT_EQ(box.text(), "10");
        QTest::keyClick(&box, Qt::Key_Down);
        EXPECT_EQ(box.text(), "9");
        box.clear();
        Control<QSlider>(dialog, "Slider1_1").setFocus();
        Click(dialog, "cmdCancel");
    });
}

TEST_F(RealDialog, BothBoxesAndResetWork) {
    EXPECT_TRUE(Show([](QDialog& dialog) {
        Type(dialog, "Text1_0", "30");
        Control<QCheckBox>(dialog, "chkColourize").click();
        Type(dialog, "Text1_0", "300");
        Type(dialog, "Text1_1", "60");
        Control<QCheckBox>(dialog, "chkPreview").click();
        Click(dialog, "cmdReset");
        EXPECT_EQ(Control<QLineEdit>(dialog, "Text1_0").text(), "0");
        Type(dialog, "Text1_1", "50");
        Click(dialog, "cmdOk");
    }));
    EXPECT_EQ(Bytes(*surface_), Adjusted(0, 0, 50, true));
}

TEST_F(RealDialog, PansAndZoomsToBothEnds) {
    Show([](QDialog& dialog) {
        auto& pane = Control<QWidget>(dialog, "Picture2");
        const QRgb corner = pane.grab().toImage().pixel(0, 0);
        QTest::mousePress(&pane, Qt::LeftButton, {}, {100, 100});
        QTest::mouseMove(&pane, {60, 70});
        QTest::mouseRelease(&pane, Qt::LeftButton, {}, {60, 70});
        EXPECT_NE(pane.grab().toImage().pixel(0, 0), corner);
        const auto& scale = Control<QLabel>(dialog, "lblScale");
        for (int i = 0; i < 5; ++i) Zoom(dialog, "up");
        EXPECT_EQ(scale.text(), "8:1");
        for (int i = 0; i < 9; ++i) Zoom(dialog, "down");
        EXPECT_EQ(scale.text(), "1:8");
        Click(dialog, "cmdCancel");
    });
}

TEST_F(RealDialog, KeysAloneWork) {
    EXPECT_FALSE(Show([](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }));
    EXPECT_TRUE(Show([](QDialog& dialog) {
        auto& slider = Control<QSlider>(dialog, "Slider1_0");
        slider.setFocus();
        QTest::keyClick(&slider, Qt::Key_Down);
        EXPECT_EQ(Control<QLineEdit>(dialog, "Text1_0").text(), "1");
        QTest::keyClick(&dialog, Qt::Key_Return);
    }));
    EXPECT_EQ(Bytes(*surface_), Adjusted(1, 0, 0, false));
}

TEST_F(RealDialog, GrowsWithTheFont) {
    const QFont normal = QApplication::font();
    const auto wheel = [&] {
        int side = 0;
        Show([&](QDialog& dialog) {
            side = Control<QWidget>(dialog, "picColorWheel").width();
            Click(dialog, "cmdCancel");
        });
        return side;
    };
    const int small = wheel();
    QFont large = normal;
    large.setPointSizeF(normal.pointSizeF() * 2.5);
    QApplication::setFont(large);
    EXPECT_GT(wheel(), small * 3 / 2);
    QApplication::setFont(normal);
}

TEST_F(RealDialog, PanesShowEachPixelOfTheScreen) {
    Show([this](QDialog& dialog) {
        auto& pane = Control<QWidget>(dialog, "Picture2");
        const QImage shown = pane.grab().toImage();
        EXPECT_EQ(shown.width(), qRound(pane.width() * pane.devicePixelRatioF()));
        // One pixel of the picture to one of the screen, whatever the ratio.
        for (int i = 0; i < 100; i += 9) {
            EXPECT_EQ(shown.pixel(i, i) & 0xFFFFFF,
                      static_cast<uint32_t>(surface_->GetPixel(i, i)) & 0xFFFFFF);
        }
        Click(dialog, "cmdCancel");
    });
}

TEST_F(RealDialog, OpensAThousandTimesWithoutGrowing) {
    const auto open = [&] {
        surface_ = New<cAlphaDIBSection>();
        surface_->Create(8, 8);
        Show([](QDialog& dialog) { Click(dialog, "cmdCancel"); });
    };
    for (int i = 0; i < 100; ++i) open();
    const size_t before = mallinfo2().uordblks;
    const size_t handles = gdi::HandleTable::LiveCount();
    for (int i = 0; i < 900; ++i) open();
    const size_t after = mallinfo2().uordblks;
    EXPECT_EQ(gdi::HandleTable::LiveCount(), handles);
    EXPECT_LT(after, before + 512 * 1024) << "a dialog left memory behind";
}

}  // namespace
}  // namespace vxgui
