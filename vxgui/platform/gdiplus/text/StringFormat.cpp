#include "vxgui/platform/gdiplus/text/StringFormat.h"

namespace vxgui::gdiplus {

const FormatSettings& FormatSettings::GenericDefault() {
    static const FormatSettings settings;
    return settings;
}

const FormatSettings& FormatSettings::GenericTypographic() {
    static const FormatSettings settings = [] {
        FormatSettings typographic;
        typographic.flags =
            StringFormatFlagsNoFitBlackBox | StringFormatFlagsLineLimit | StringFormatFlagsNoClip;
        typographic.trimming = StringTrimmingNone;
        typographic.padding = 0;
        return typographic;
    }();
    return settings;
}

}  // namespace vxgui::gdiplus
