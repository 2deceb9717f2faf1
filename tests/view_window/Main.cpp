#include <gmock/gmock.h>

#include <QApplication>
#include <QStyleFactory>
#include <cstdlib>

#include "generated/Places.h"
#include "vxgui/platform/forms.h"

int main(int argc, char** argv) {
    setenv("FONTCONFIG_FILE", VXGUI_SOURCE_DIR "/tests/data/fonts.conf", 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    testing::InitGoogleMock(&argc, argv);
    const QApplication application(argc, argv);
    vxgui::forms::SetToolkit(nullptr);  // no box waits for a hand
    QApplication::setStyle(QStyleFactory::create("Fusion"));
    return RUN_ALL_TESTS();
}
