#include "fuzz/Fuzz.h"
#include "vxgui/platform/core7_define.h"

// Each key of each section is asked for in each of its forms.
FUZZER(Define, input) {
    using namespace vxgui;
    const Ref<core7::DefineFile> file = core7::CreateDefineFile();
    if (!file->LoadText(String(fuzz::TextOf(input)))) return;
    for (const String& section : file->SectionNames()) {
        for (const String& key : file->KeyNames(section)) {
            file->GetString(section, key, "");
            file->GetInteger(section, key, "7");
            file->GetNumber(section, key, "1.5");
            if (file->PositionOf(section, key).line <= 0) __builtin_trap();
        }
    }
}
