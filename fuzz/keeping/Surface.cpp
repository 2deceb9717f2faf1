#include "fuzz/Fuzz.h"
#include "vxgui/surface/cAlphaDIBSection.h"

// A surface that was read is painted, and stored again.
FUZZER(Surface, input) {
    const auto surface = vxgui::New<vxgui::cAlphaDIBSection>();
    const auto canvas = vxgui::New<vxgui::cAlphaDIBSection>();
    if (!surface->FromByteArray(vxgui::fuzz::BytesOf(input))) return;
    canvas->Create(40, 30);
    surface->AlphaPaintPicture(canvas->hDC(), 1, 1, 30, 20);
    vxgui::ByteArray bytes;
    surface->ToByteArray(bytes, 0);
}
