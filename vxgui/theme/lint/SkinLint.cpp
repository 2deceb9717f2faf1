#include "vxgui/theme/lint/SkinLint.h"

#include "vxgui/base/Attempt.h"
#include "vxgui/base/NumberText.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/text/TextStyle.h"

namespace vxgui::lint {

void CheckTextStyle(Page& page, const String& section) {
    const Ref<TextStyle> style = New<TextStyle>();
    style->TextStyle = -1;  // what a colour that can't be read leaves
    Attempt([&] { style->FromIniFile(page.File(), section); });
    if (style->TextStyle != TextStyleNormal) return;
    for (const KeyRule& rule : TextStyleKeys()) {
        if (rule.needs == Needs::DrawStyle && page.Has(section, rule.name))
            page.WarnAt(section, rule.name,
                        String(rule.name) + " has no effect, since DrawStyle is 0 or not given");
    }
}

void CheckFont(Page& page, const String& section) {
    page.CheckKeys(section, {FontKeys(), TextStyleKeys()});
    if (page.Integer(section, "DrawingStyle") > 0) return CheckTextStyle(page, section);
    for (const KeyRule& rule : TextStyleKeys()) {
        if (!FindKey(FontKeys(), rule.name) && page.Has(section, rule.name))
            page.WarnAt(section, rule.name,
                        String(rule.name) + " has no effect, since DrawingStyle is 0 or not given");
    }
}

NumberedName SplitNumber(const String& section) {
    constexpr size_t kMostDigits = 9;
    const size_t last = section.view().find_last_not_of(u"0123456789");
    const size_t length = last == String::npos ? 0 : last + 1;
    NumberedName name{section.Left(length), section.Mid(length)};
    if (!name.digits.empty() && name.digits.size() <= kMostDigits)
        name.number = RoundHalfEven(LeadingNumber(name.digits));
    return name;
}

}  // namespace vxgui::lint
