#include "fuzz/Fuzz.h"
#include "fuzz/skins/ScratchFolder.h"
#include "vxgui/base/Attempt.h"
#include "vxgui/theme/SkinDef.h"

FUZZER(StyleModule, input) {
    using namespace vxgui;
    const std::string path = fuzz::WriteScratch("Styles.dll", fuzz::TextOf(input));
    const auto skin = New<SkinDef>();
    skin->SkinPath(fuzz::ScratchFolder());
    skin->DefFile("res:" + path + ":blue");
    Attempt([&] { skin->InitializeXPTaskbar(); });
}
