#include "fuzz/Fuzz.h"
#include "vxgui/base/Attempt.h"
#include "vxgui/base/NumberText.h"
#include "vxgui/text/ColorText.h"

FUZZER(ColourText, input) {
    vxgui::String text(vxgui::fuzz::TextOf(input));
    vxgui::LeadingNumber(text);
    vxgui::IsNumeric(text);
    vxgui::Attempt([&] { vxgui::ParseColorText(text); });
}
