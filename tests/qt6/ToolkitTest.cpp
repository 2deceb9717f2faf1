#include <gtest/gtest.h>

#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <thread>

#include "tests/qt6/DialogHand.h"
#include "tests/support/TemporaryFolder.h"
#include "vxgui/frame/VxGuiGlobal.h"
#include "vxgui/platform/forms.h"
#include "vxgui/platform/kernel.h"
#include "vxgui/platform/qt6/FileFilters.h"
#include "vxgui/platform/qt6/QtDisplay.h"

namespace vxgui {
namespace {

using test::WhenShown;

TEST(FileFilters, NameAndPatternsAreThoseOfTheDialog) {
    const QStringList filters = qt6::FileFilters("All:*.*|Pictures:*.bmp;jif|");
    EXPECT_EQ(filters, (QStringList{"All (*)", "Pictures (*.[bB][mM][pP] [jJ][iI][fF])"}));
}

TEST(MessageBox, ShowsTextAndIconAndAnswersTheButton) {
    WhenShown<QMessageBox>([](QMessageBox& box) {
        EXPECT_EQ(box.text(), "It <b>failed</b>.");
        EXPECT_EQ(box.textFormat(), Qt::PlainText);
        EXPECT_EQ(box.windowTitle(), "Title");
        EXPECT_EQ(box.icon(), QMessageBox::Critical);
        EXPECT_EQ(box.standardButtons(), QMessageBox::Ok);
        box.button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(kernel::TheKernel().MessageBox("It <b>failed</b>.", "Title", 0x10010), kernel::IDOK);
}

TEST(MessageBox, HasTheButtonsOfItsStyle) {
    WhenShown<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Cancel)->click(); });
    EXPECT_EQ(kernel::TheKernel().MessageBox("?", "", 0x21), 2);
    WhenShown<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
    EXPECT_EQ(kernel::TheKernel().MessageBox("?", "", 0x34), 7);
}

TEST(OpenPictureDialog, AnswersTheFileAndKeepsTheKind) {
    const test::TemporaryFolder folder;
    const std::string path = folder.Write("picture.png", "").Utf8();
    String name;
    WhenShown<QFileDialog>([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), QString::fromUtf16(u"打开图像文件"));
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        EXPECT_TRUE(dialog.selectedNameFilter().startsWith(QString::fromUtf16(u"图像文件")));
        dialog.selectNameFilter(dialog.nameFilters().at(7));
        dialog.setDirectory(QString::fromStdString(path).section('/', 0, -2));
        dialog.selectFile(QString::fromStdString(path));
        QMetaObject::invokeMethod(&dialog, "accept");
    });
    EXPECT_TRUE(Global().ShowOpenPictureFile(name));
    EXPECT_EQ(name.Utf8(), path);

    WhenShown<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_TRUE(dialog.selectedNameFilter().startsWith("PNG"));
        dialog.reject();
    });
    EXPECT_FALSE(Global().ShowOpenPictureFile(name));
    EXPECT_EQ(name.Utf8(), path);
}

TEST(Toolkit, IsForTheThreadOfTheApplicationAlone) {
    EXPECT_NE(forms::UsableToolkit(), nullptr);
    std::thread([] { EXPECT_EQ(forms::UsableToolkit(), nullptr); }).join();
}

TEST(Display, IsNotThereWithoutOne) {
    std::string reason;
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    setenv("DISPLAY", ":7654", 1);
    unsetenv("WAYLAND_DISPLAY");
    EXPECT_FALSE(qt6::DisplayAnswers(&reason));
    EXPECT_NE(reason.find(":7654"), std::string::npos);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    EXPECT_TRUE(qt6::DisplayAnswers(&reason));
}

}  // namespace
}  // namespace vxgui
