#include "vxgui/theme/lint/UisPools.h"

#include "vxgui/theme/lint/SkinLint.h"
#include "vxgui/theme/lint/ValueCheck.h"

namespace vxgui::lint {
namespace {

String Decimal(int64_t number) { return String::FromInt(number); }

}  // namespace

UisPools::UisPools(Page& page) : page_(page) {
    for (Run* run : {&colours_, &fonts_, &systemFonts_}) Count(*run);
}

bool UisPools::IsMember(const Run& run, int32_t number) const {
    const String section = run.prefix + Decimal(number);
    if (run.key) return !page_.Text(section, run.key).empty();
    return !page_.Text(section, "Colour").empty() || !page_.Text(section, "R").empty();
}

void UisPools::Count(Run& run) const {
    while (IsMember(run, run.count)) ++run.count;
}

bool UisPools::CheckSection(const String& section) {
    if (section.EqualsNoCase("Colours")) {
        CheckColours(section);
    } else if (section.EqualsNoCase("Fonts")) {
        CheckFont(page_, section);
    } else if (section.EqualsNoCase("SystemFonts")) {
        page_.CheckKeys(section, {UisSystemFontKeys()});
        for (const KeyRule& rule : UisSystemFontKeys())
            CheckReference(page_, section, rule.name, systemFonts_);
    } else {
        return CheckNumbered(colours_, section) || CheckNumbered(fonts_, section) ||
               CheckNumbered(systemFonts_, section);
    }
    return true;
}

bool UisPools::CheckNumbered(Run& run, const String& section) {
    const NumberedName name = SplitNumber(section);
    const bool ours = name.stem.EqualsNoCase(run.prefix) && name.number >= 0 &&
                      name.digits == Decimal(name.number);
    if (!ours) return false;
    if (run.key)
        CheckFont(page_, section);
    else
        page_.CheckKeys(section, {UisColourKeys()});
    if (name.number < run.count) return true;
    const String last = run.prefix + Decimal(run.count);
    const String wanted = run.key ? String(run.key) : String("Colour or R");
    const bool gap = !page_.Has(last);
    page_.WarnAt(section,
                 "[" + section + "] is never read, since " +
                     (gap ? "there is no [" + last + "]" : "[" + last + "] has no " + wanted));
    return true;
}

void UisPools::CheckColours(const String& section) {
    for (const String& key : page_.File()->KeyNames(section)) {
        if (const auto verdict = CheckSystemColour(page_.Text(section, key)))
            page_.WarnAt(section, key, key + ": " + verdict->text);
    }
}

void UisPools::CheckReference(Page& page, const String& section, const char* key, Run& run) {
    if (!page.Has(section, key)) return;
    const int32_t number = page.Integer(section, key);
    if (number < 0) return;
    if (number < run.count)
        run.used.insert(number);
    else
        page.WarnAt(section, key,
                    String(key) + ": there is no [" + run.prefix + Decimal(number) + "]");
}

void UisPools::CheckReferences(Page& page, const String& section) {
    for (const KeyRule& rule : UisItemKeys()) {
        if (rule.kind == ValueKind::ColourIndex) CheckReference(page, section, rule.name, colours_);
        if (rule.kind == ValueKind::FontIndex) CheckReference(page, section, rule.name, fonts_);
    }
}

// Colours are not told: skins share one palette, and few use all of it.
void UisPools::ReportUnused() {
    ReportUnused(fonts_);
    ReportUnused(systemFonts_);
}

void UisPools::ReportUnused(const Run& run) {
    for (int32_t n = 0; n < run.count; ++n) {
        const String section = run.prefix + Decimal(n);
        if (!run.used.contains(n)) page_.WarnAt(section, "nothing uses [" + section + "]");
    }
}

}  // namespace vxgui::lint
