#include "vxgui/platform/gdi/text/MissingFonts.h"

#include <fontconfig/fontconfig.h>

#include "vxgui/platform/core7.h"

namespace vxgui::gdi {
namespace {

bool AreThereFonts() {
    const FcFontSet* const fonts = FcConfigGetFonts(nullptr, FcSetSystem);
    return fonts && fonts->nfont > 0;
}

}  // namespace

void TellOfMissingFonts() {
    thread_local bool told = false;
    if (told || AreThereFonts()) return;
    told = true;
    constexpr int32_t kFailure = 4;
    core7::CreateTrace()->Write("text: no font is installed, so that no text can be shown",
                                kFailure);
}

}  // namespace vxgui::gdi
