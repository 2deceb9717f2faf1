#include "vxgui/theme/CompiledSkin.h"

#include "fuzz/Fuzz.h"
#include "fuzz/skins/PaintItems.h"
#include "vxgui/base/Attempt.h"
#include "vxgui/base/LittleEndian.h"
#include "vxgui/platform/core7.h"

// Size and checksum are put right first, so that what they guard is reached.
FUZZER(CompiledSkin, input) {
    using namespace vxgui;
    ByteArray file = fuzz::BytesOf(input);
    if (file.size() < 20) return;
    StoreLittle(file.data() + 8, static_cast<uint32_t>(file.size()));
    StoreLittle(file.data() + 12, core7::Checksum(file.data() + 16, file.size() - 16));
    Attempt([&] { fuzz::PaintItems(CompiledSkinFrom(file).set->ThemeItems()); });
}
