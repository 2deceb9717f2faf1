#include <gmock/gmock.h>

#include <cstdlib>

#include "generated/Places.h"
#include "tests/support/GuardedPixels.h"
#include "tests/support/WantedInstructionSet.h"
#include "vxgui/platform/forms.h"

/// All test programs see the same fonts, which must be settled before any is looked for, and no
/// window of a toolkit that happens to be installed.
int main(int argc, char** argv) {
    setenv("FONTCONFIG_FILE", VXGUI_SOURCE_DIR "/tests/data/fonts.conf", 1);
    vxgui::forms::SetToolkit(nullptr);
    vxgui::test::GuardedPixels::ObeyEnvironment();
    if (!vxgui::test::ObeyWantedInstructionSet()) return vxgui::test::kSkipped;
    testing::InitGoogleMock(&argc, argv);
    return RUN_ALL_TESTS();
}
