#include <gmock/gmock.h>

#include <QApplication>
#include <cstdlib>

#include "generated/Places.h"
#include "vxgui/platform/forms.h"
#include "vxgui/platform/qt6/QtToolkit.h"

/// The host has an application object of its own, on a platform without a display.
int main(int argc, char** argv) {
    setenv("FONTCONFIG_FILE", VXGUI_SOURCE_DIR "/tests/data/fonts.conf", 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    testing::InitGoogleMock(&argc, argv);
    const QApplication application(argc, argv);
    vxgui::qt6::QtToolkit toolkit;
    vxgui::forms::SetToolkit(&toolkit);
    const int result = RUN_ALL_TESTS();
    vxgui::forms::SetToolkit(nullptr);
    return result;
}
