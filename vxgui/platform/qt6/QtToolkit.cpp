#include "vxgui/platform/qt6/QtToolkit.h"

#include <QApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QThread>

#include "vxgui/platform/qt6/AdjustDialog.h"
#include "vxgui/platform/qt6/FileFilters.h"
#include "vxgui/platform/qt6/QtDisplay.h"
#include "vxgui/platform/qt6/QtText.h"

namespace vxgui::qt6 {
namespace {

// Qt keeps both for as long as the application lives, which is to the end of the process.
void MakeApplication() {
    static int count = 1;
    static char name[] = "vxgui";
    static char* arguments[] = {name, nullptr};
    new QApplication(count, arguments);
    // A dialog that closes must not end a loop that the host runs later.
    QApplication::setQuitOnLastWindowClosed(false);
}

constexpr uint32_t kButtons = 0xF, kOkCancel = 1, kYesNo = 4;
constexpr uint32_t kIcons = 0xF0, kError = 0x10, kQuestion = 0x20, kWarning = 0x30, kNote = 0x40;
constexpr int32_t kOk = 1, kCancel = 2, kYes = 6, kNo = 7;

QMessageBox::Icon IconOf(uint32_t style) {
    switch (style & kIcons) {
        case kError:
            return QMessageBox::Critical;
        case kQuestion:
            return QMessageBox::Question;
        case kWarning:
            return QMessageBox::Warning;
        case kNote:
            return QMessageBox::Information;
        default:
            return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButtons ButtonsOf(uint32_t style) {
    switch (style & kButtons) {
        case kOkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case kYesNo:
            return QMessageBox::Yes | QMessageBox::No;
        default:
            return QMessageBox::Ok;
    }
}

int32_t AnswerOf(int button) {
    switch (button) {
        case QMessageBox::Cancel:
            return kCancel;
        case QMessageBox::Yes:
            return kYes;
        case QMessageBox::No:
            return kNo;
        default:
            return kOk;
    }
}

}  // namespace

bool QtToolkit::IsUsable(std::string* reason) {
    if (!QCoreApplication::instance()) {
        if (!DisplayAnswers(reason)) return false;
        MakeApplication();
    }
    if (!qobject_cast<QApplication*>(QCoreApplication::instance())) {
        *reason = "the host's application object shows no widgets";
        return false;
    }
    if (QThread::currentThread() == QCoreApplication::instance()->thread()) return true;
    *reason = "windows belong to the thread of the application object, and this is another";
    return false;
}

std::unique_ptr<forms::AdjustForm> QtToolkit::CreateAdjustForm(
    forms::AdjustEvents& events, const forms::AdjustCaptions& captions) {
    return std::make_unique<AdjustDialog>(events, captions);
}

bool QtToolkit::OpenFile(const forms::OpenFileQuestion& question, forms::OpenFileAnswer* answer) {
    const QStringList filters = FileFilters(TextOf(question.filter));
    QFileDialog dialog(QApplication::activeWindow(), TextOf(question.caption));
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilters(filters);
    dialog.selectNameFilter(filters.value(question.filterIndex - 1));
    if (!question.fileName.empty()) dialog.selectFile(TextOf(question.fileName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return false;
    answer->fileName = dialog.selectedFiles().first().toStdU16String();
    answer->filterIndex = static_cast<int32_t>(filters.indexOf(dialog.selectedNameFilter())) + 1;
    return true;
}

int32_t QtToolkit::MessageBox(std::u16string_view text, std::u16string_view caption,
                              uint32_t style) {
    QMessageBox box(IconOf(style), TextOf(caption), TextOf(text), ButtonsOf(style),
                    QApplication::activeWindow());
    box.setTextFormat(Qt::PlainText);
    return AnswerOf(box.exec());
}

void QtToolkit::PumpEvents() { QCoreApplication::processEvents(); }

}  // namespace vxgui::qt6

extern "C" __attribute__((visibility("default"))) vxgui::forms::Toolkit* VxGuiToolkit() {
    static vxgui::qt6::QtToolkit toolkit;
    return &toolkit;
}
