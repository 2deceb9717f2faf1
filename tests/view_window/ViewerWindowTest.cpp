#include "tools/view/window/ViewerWindow.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QMouseEvent>
#include <QTest>

#include "tests/qt6/DialogHand.h"
#include "tests/view/SkinCopy.h"

namespace vxgui::view {
namespace {

using test::Control;

class Viewer : public testing::Test {
protected:
    explicit Viewer(tool::ViewOptions options = {}) {
        options.skin = copy_.Path();
        window_ = std::make_unique<ViewerWindow>(options);
        window_->show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(window_.get()));
    }

    StageView& Stage() { return window_->Stage(); }
    QImage ItemPicture() { return Stage().grab(Stage().ItemRect()).toImage(); }
    // Told to the stage itself: a cursor that stands there already would say nothing.
    void MoveTo(const QPoint& place, Qt::MouseButtons held = Qt::NoButton) {
        QMouseEvent move(QEvent::MouseMove, place, Stage().mapToGlobal(place), Qt::NoButton, held,
                         Qt::NoModifier);
        QApplication::sendEvent(&Stage(), &move);
    }
    QPoint Middle() { return Stage().ItemRect().center(); }
    template <class Widget>
    Widget& Named(const char* name) {
        return Control<Widget>(*window_, name);
    }
    QString Fact(const char* name) { return Named<QLabel>(name).text(); }
    template <class Condition>
    bool Comes(Condition condition) {
        return QTest::qWaitFor(condition, 8000);
    }
    void Trigger(const char* action) {
        auto* const found = window_->findChild<QAction*>(action);
        ASSERT_TRUE(found);
        found->trigger();
    }

    const SkinCopy copy_{"aurora/aurora.theme"};
    std::unique_ptr<ViewerWindow> window_;
};

TEST_F(Viewer, ListsTheItemsWithTheirPictures) {
    auto& items = Named<QListWidget>("items");
    ASSERT_EQ(items.count(), 14);
    EXPECT_EQ(items.item(0)->text(), "PushButton");
    EXPECT_FALSE(items.item(0)->icon().isNull());
    EXPECT_NE(items.item(0)->icon().pixmap(72, 40).toImage(),
              items.item(1)->icon().pixmap(72, 40).toImage());
    Named<QLineEdit>("filter").setText("progress");
    EXPECT_TRUE(items.item(0)->isHidden());
    EXPECT_FALSE(items.item(6)->isHidden());
}

TEST_F(Viewer, ControlFollowsTheMouse) {
    const QImage normal = ItemPicture();
    MoveTo(Middle());
    EXPECT_EQ(Stage().Shown().state, E_ItemStateMouseOver);
    const QImage over = ItemPicture();
    EXPECT_NE(over, normal);
    EXPECT_TRUE(Named<QComboBox>("heldState").itemText(0).contains("MouseOver"));
    QTest::mousePress(&Stage(), Qt::LeftButton, {}, Middle());
    EXPECT_EQ(Stage().Shown().state, E_ItemStateFocusPressed);
    EXPECT_NE(ItemPicture(), over);
    QTest::mouseRelease(&Stage(), Qt::LeftButton, {}, Middle());
    MoveTo(QPoint(3, 3));
    EXPECT_EQ(Stage().Shown().state, E_ItemStateFocus);
    QTest::mouseClick(&Stage(), Qt::LeftButton, {}, QPoint(3, 3));
    EXPECT_EQ(Stage().Shown().state, E_ItemStateNormal);
    EXPECT_EQ(ItemPicture(), normal);
}

TEST_F(Viewer, ControlIsPressedByTheSpaceBar) {
    QTest::mouseClick(&Stage(), Qt::LeftButton, {}, Middle());
    MoveTo(QPoint(3, 3));
    QTest::keyPress(&Stage(), Qt::Key_Space);
    EXPECT_EQ(Stage().Shown().state, E_ItemStateFocusPressed);
    QTest::keyRelease(&Stage(), Qt::Key_Space);
    EXPECT_EQ(Stage().Shown().state, E_ItemStateFocus);
}

TEST_F(Viewer, ControlIsDisabledOrHeldInAState) {
    const QImage normal = ItemPicture();
    Named<QCheckBox>("disabled").click();
    EXPECT_EQ(Stage().Shown().state, E_ItemStateDisabled);
    EXPECT_NE(ItemPicture(), normal);
    Named<QComboBox>("heldState").setCurrentIndex(1 + E_ItemStateGroup);
    EXPECT_EQ(Stage().Shown().state, E_ItemStateGroup);
    EXPECT_EQ(Fact("fact Frame"), "none in this state");
    Named<QComboBox>("heldState").setCurrentIndex(0);
    Named<QCheckBox>("disabled").click();
    EXPECT_EQ(Stage().Shown().state, E_ItemStateNormal);
}

TEST_F(Viewer, CaptionIsTyped) {
    auto& caption = Named<QLineEdit>("caption");
    EXPECT_FALSE(caption.text().isEmpty());  // the author's own
    const QImage before = ItemPicture();
    caption.setFocus();
    caption.selectAll();
    QTest::keyClicks(&caption, "Cancel");
    EXPECT_EQ(Stage().Shown().caption.Utf8(), "Cancel");
    EXPECT_NE(ItemPicture(), before);
    Named<QListWidget>("items").setCurrentRow(1);
    EXPECT_EQ(caption.text(), "Cancel");  // for the other items too
}

TEST_F(Viewer, ItemIsResizedByDragging) {
    const QRect before = Stage().ItemRect();
    const QPoint grip(before.right() + 4, before.center().y());
    MoveTo(grip);
    EXPECT_EQ(Stage().cursor().shape(), Qt::SizeHorCursor);
    QTest::mousePress(&Stage(), Qt::LeftButton, {}, grip);
    MoveTo(grip + QPoint(50, 20), Qt::LeftButton);
    EXPECT_EQ(Stage().ItemRect().left(), before.left());  // under the hand
    EXPECT_EQ(Stage().ItemRect().width(), before.width() + 50);
    EXPECT_EQ(Stage().ItemRect().height(), before.height());
    QTest::mouseRelease(&Stage(), Qt::LeftButton, {}, grip + QPoint(50, 20));
    EXPECT_EQ(Named<QSpinBox>("width").value(), before.width() + 50);
    Named<QPushButton>("ownSize").click();
    EXPECT_EQ(Stage().Shown().size.cx, Stage().Shown().item->ImageWidth());
    Named<QSpinBox>("height").setValue(77);
    EXPECT_EQ(Stage().ItemRect().height(), 77);
}

TEST_F(Viewer, ZoomMakesASquareOfEachPixel) {
    Trigger("grid");  // off
    emit Named<QComboBox>("background").activated(1);
    MoveTo(QPoint(3, 3));
    const QImage once = ItemPicture();
    Stage().Factor(8);
    QApplication::processEvents();
    const QImage eight = ItemPicture();
    ASSERT_EQ(eight.width(), once.width() * 8);
    for (int y = 0; y < once.height(); ++y) {
        for (int x = 0; x < once.width(); ++x) {
            for (const QPoint& part : {QPoint(0, 0), QPoint(7, 0), QPoint(3, 7)})
                ASSERT_EQ(eight.pixel(x * 8 + part.x(), y * 8 + part.y()), once.pixel(x, y));
        }
    }
    EXPECT_EQ(Named<QLabel>("factor").text(), "8\u00D7");
    Trigger("grid");
    EXPECT_NE(ItemPicture(), eight);
}

TEST_F(Viewer, MarginsAreDrawnOverOnRequest) {
    const QImage before = ItemPicture();
    Trigger("margins");
    const QImage with = ItemPicture();
    EXPECT_NE(with, before);
    const int middle = with.height() / 2;  // the margin of 11 columns is a dashed line
    int changed = 0;
    for (int y = 0; y < with.height(); ++y) changed += with.pixel(11, y) != before.pixel(11, y);
    EXPECT_GE(changed, with.height() / 3);
    EXPECT_EQ(with.pixel(30, middle), before.pixel(30, middle));
    Trigger("margins");
    EXPECT_EQ(ItemPicture(), before);
}

TEST_F(Viewer, PickerTellsTheColourUnderTheMouse) {
    Stage().Factor(4);
    QApplication::processEvents();
    Named<QComboBox>("heldState").setCurrentIndex(1);
    const QPoint place = Stage().ItemRect().topLeft() + QPoint(20 * 4 + 1, 12 * 4 + 2);
    MoveTo(place);
    EXPECT_EQ(Fact("pickedPlace"), "20, 12");
    const QColor shown = Stage().grab(QRect(place, QSize(1, 1))).toImage().pixelColor(0, 0);
    EXPECT_EQ(Fact("pickedHex"), shown.name().toUpper());
    const QString bgra =
        QString("%1 %2 %3 255").arg(shown.blue()).arg(shown.green()).arg(shown.red());
    EXPECT_EQ(Fact("pickedBgra"), bgra);
    MoveTo(QPoint(1, 1));
    EXPECT_EQ(Fact("pickedBgra"), "\u2013");
}

TEST_F(Viewer, BackgroundIsChosen) {
    auto& grounds = Named<QComboBox>("background");
    emit grounds.activated(3);
    EXPECT_EQ(Stage().grab(QRect(1, 1, 1, 1)).toImage().pixelColor(0, 0), QColor(Qt::black));
    emit grounds.activated(1);
    EXPECT_EQ(Stage().grab(QRect(1, 1, 1, 1)).toImage().pixelColor(0, 0), QColor(Qt::white));
}

TEST_F(Viewer, ReadsTheSkinAnewWhenItIsSaved) {
    EXPECT_EQ(Fact("fact Margins"), "11, 9, 11, 9");
    copy_.Edit("ImageMargin=11,9,11,9", "ImageMargin=3,4,5,6");
    EXPECT_TRUE(Comes([&] { return Fact("fact Margins") == "3, 4, 5, 6"; }));
}

TEST_F(Viewer, ReadsAPictureAnewWhenItIsSaved) {
    const QImage before = ItemPicture();
    namespace fs = std::filesystem;
    const fs::path folder = fs::path(copy_.Path()).parent_path();
    fs::copy_file(folder / "tooltip.tga", folder / "button.tga",
                  fs::copy_options::overwrite_existing);
    EXPECT_TRUE(Comes([&] { return ItemPicture() != before; }));
}

TEST_F(Viewer, BrokenEditLeavesTheLastGoodSkinAndShowsWhatIsWrong) {
    Named<QListWidget>("items").setCurrentRow(4);
    const QImage before = ItemPicture();
    const std::string good = copy_.Text();
    copy_.Edit("Image=button.tga", "Image=buton.tga");
    auto& messages = Named<QListWidget>("messages");
    ASSERT_TRUE(Comes([&] { return messages.count() > 0; }));
    EXPECT_TRUE(messages.item(0)->text().contains("aurora.theme:81:1: error: "));
    EXPECT_TRUE(messages.item(0)->text().contains("buton.tga"));
    EXPECT_TRUE(Fact("headline").contains("last good skin"));
    EXPECT_TRUE(window_->windowTitle().contains("error"));
    EXPECT_EQ(ItemPicture(), before);
    EXPECT_EQ(Named<QListWidget>("items").count(), 14);
    copy_.Write(good);
    EXPECT_TRUE(Comes([&] { return messages.count() == 0; }));
    EXPECT_EQ(Named<QListWidget>("items").currentRow(), 4);
    EXPECT_EQ(ItemPicture(), before);
}

TEST_F(Viewer, RecoloursLiveAndSavesWhatIsShown) {
    const QImage before = ItemPicture();
    auto& hue = Named<QSlider>("hue");
    hue.setFocus();
    for (int i = 0; i < 9; ++i) QTest::keyClick(&hue, Qt::Key_PageUp);
    EXPECT_EQ(hue.value(), 90);
    ASSERT_TRUE(Comes([&] { return ItemPicture() != before; }));
    Named<QSpinBox>("lightnessNumber").setValue(15);
    ASSERT_TRUE(Comes([&] { return window_->Source().Colours() == Recolour{90, 0, 15}; }));
    window_->Save(QString::fromStdString(copy_.Beside("new")));
    EXPECT_TRUE(Fact("headline").contains("new/aurora.theme"));
    const Skin saved = LoadSkin(copy_.Beside("new/aurora.theme"));
    EXPECT_EQ(DifferenceOf(*window_->Source().Get(), saved), "");
    Named<QPushButton>("resetColours").click();
    EXPECT_TRUE(Comes([&] { return ItemPicture() == before; }));
}

class ConfiguredViewer : public Viewer {
protected:
    ConfiguredViewer() : Viewer(Options()) {}
    static tool::ViewOptions Options() {
        tool::ViewOptions options;
        options.item = "tab";
        options.caption = "Left";
        options.captioned = true;
        options.zoom = 3;
        options.margins = true;
        options.background = "#102030";
        return options;
    }
};

TEST_F(ConfiguredViewer, BeginsAsItsCommandLineSays) {
    EXPECT_EQ(Named<QListWidget>("items").currentItem()->text(), "Tab");
    EXPECT_EQ(Stage().Shown().caption.Utf8(), "Left");
    EXPECT_EQ(Stage().Factor(), 3);
    EXPECT_EQ(Stage().grab(QRect(1, 1, 1, 1)).toImage().pixelColor(0, 0), QColor(0x10, 0x20, 0x30));
    EXPECT_TRUE(window_->findChild<QAction*>("margins")->isChecked());
}

TEST(BrokenSkin, OpensWithWhatIsWrongAndShowsItWhenItIsMended) {
    const SkinCopy copy("aurora/aurora.theme");
    const std::string good = copy.Text();
    copy.Write("no skin at all\n");
    tool::ViewOptions options;
    options.skin = copy.Path();
    ViewerWindow window(options);
    window.show();
    EXPECT_GT(Control<QListWidget>(window, "messages").count(), 0);
    EXPECT_EQ(Control<QListWidget>(window, "items").count(), 0);
    copy.Write(good);
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return Control<QListWidget>(window, "items").count() == 14; }, 8000));
}

}  // namespace
}  // namespace vxgui::view
