#include "fuzz/drawing/ByteReader.h"
#include "vxgui/surface/cAlphaDIBSection.h"
#include "vxgui/text/LFont.h"
#include "vxgui/text/TextStyle.h"

// Any text in any style with any flags but the one by which the platform writes into the caller's
// text, and by the styled painters as well.
FUZZER(Text, input) {
    using namespace vxgui;
    fuzz::ByteReader bytes(input);
    const auto canvas = New<cAlphaDIBSection>();
    canvas->Create(64, 48);
    const auto flags = bytes.Take<uint32_t>();
    const auto style = New<TextStyle>();
    style->TextStyle = bytes.Take<uint8_t>() % 8;
    style->TextAlignHorz = bytes.Take<uint8_t>() % 4;
    style->ShadowX = bytes.Take<uint8_t>() % 6;
    style->ShadowY = bytes.Take<uint8_t>() % 6;
    Ref<LFont> font;
    const int32_t left = bytes.Coordinate(), top = bytes.Coordinate();
    const int32_t right = bytes.Coordinate(), bottom = bytes.Coordinate();
    style->DrawText(canvas->hDC(), String(bytes.Text(200)), flags, font, left, top, right, bottom);
}
