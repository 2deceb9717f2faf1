#include <gmock/gmock.h>

#include <cstdlib>

/// All test programs see the same fonts, which must be settled before any is looked for.
int main(int argc, char** argv) {
    setenv("FONTCONFIG_FILE", VXGUI_SOURCE_DIR "/tests/data/fonts.conf", 1);
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
