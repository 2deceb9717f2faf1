#include "vxgui/theme/ThemeSet.h"
#include "fuzz/Fuzz.h"
#include "fuzz/skins/PaintItems.h"
#include "generated/Places.h"
#include "vxgui/base/Attempt.h"

// The sample skin's pictures are there for the items that name them.
FUZZER(ThemeSet, input) {
    using namespace vxgui;
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    if (!file->LoadText(String(fuzz::TextOf(input)))) return;
    const auto set = New<ThemeSet>();
    Attempt([&] { ThemeSetFromDefine(set, file, VXGUI_SOURCE_DIR "/skins/aurora"); });
    fuzz::PaintItems(set->ThemeItems());
}
