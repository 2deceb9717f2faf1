#include "fuzz/Fuzz.h"
#include "fuzz/skins/ScratchFolder.h"
#include "vxgui/base/Attempt.h"
#include "vxgui/theme/SkinDef.h"
#include "vxgui/theme/lint/CheckSkin.h"

// Two files in one input: the define file, and behind the first zero byte its taskbar file.
FUZZER(Uis, input) {
    using namespace vxgui;
    const std::string text = fuzz::TextOf(input);
    const size_t end = std::min(text.find('\0'), text.size());
    const std::string uis = fuzz::WriteScratch("skin.uis", text.substr(0, end));
    fuzz::WriteScratch("taskbar.xp", text.substr(std::min(end + 1, text.size())));
    lint::CheckSkin(uis);
    const auto skin = New<SkinDef>();
    skin->SkinPath(fuzz::ScratchFolder());
    skin->SkinName("skin");
    skin->DefFile(uis);
    Attempt([&] { skin->InitializeXPTaskbar(); });
}
