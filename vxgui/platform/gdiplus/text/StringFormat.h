#pragma once

#include <vector>

#include "vxgui/platform/gdiplus/FlatObject.h"
#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// The settings of a string format.
struct FormatSettings {
    INT flags = 0;  ///< of `StringFormatFlags`
    StringAlignment alignment = StringAlignmentNear;
    StringAlignment lineAlignment = StringAlignmentNear;
    StringTrimming trimming = StringTrimmingCharacter;
    HotkeyPrefix hotkeyPrefix = HotkeyPrefixNone;
    LANGID language = 0;
    LANGID digitLanguage = 0;
    StringDigitSubstitute digitSubstitute = StringDigitSubstituteUser;
    REAL firstTabOffset = 0;
    std::vector<REAL> tabStops;  ///< each from the one before it
    double padding = 1.0 / 6;    ///< left free on both sides of a line, in ems

    bool Has(StringFormatFlags flag) const { return (flags & flag) != 0; }
    bool operator==(const FormatSettings&) const = default;

    /// What drawing without a format takes.
    static const FormatSettings& GenericDefault();
    static const FormatSettings& GenericTypographic();
};

/// What a format handle names.
class StringFormat final : public FlatObject {
public:
    explicit StringFormat(FormatSettings settings, bool shared = false)
        : settings(std::move(settings)), shared(shared) {}

    FormatSettings settings;
    std::vector<CharacterRange> ranges;
    const bool shared;  ///< by all callers, so that it neither changes nor ends
};

}  // namespace vxgui::gdiplus
