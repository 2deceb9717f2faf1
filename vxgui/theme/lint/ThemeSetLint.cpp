#include <map>
#include <set>

#include "vxgui/platform/limits.h"
#include "vxgui/theme/ThemeSet.h"
#include "vxgui/theme/lint/ItemLint.h"
#include "vxgui/theme/lint/NearestName.h"
#include "vxgui/theme/lint/SkinLint.h"
#include "vxgui/theme/lint/ValueCheck.h"

namespace vxgui::lint {
namespace {

const char* const kSetSection = "ThemeSet";
constexpr int32_t kMostNamed = 3;  // of the sections that a count promises and that aren't there

/// A numbered family of sections, and the key of [ThemeSet] that counts them.
struct Family {
    const char* countKey;
    const char* prefix;
    const char* key = nullptr;  ///< of an item, with a number for each state
    int32_t count = 0;
    std::set<int32_t> used{};

    bool Counts(int32_t number) const { return number >= 1 && number <= count; }
    String Section(int32_t number) const { return NumberedSection(prefix, number); }
};

class ThemeSetLint {
public:
    ThemeSetLint(Page& page, PictureShelf& shelf) : page_(page), shelf_(shelf) {}
    void Check();

private:
    void CheckCount(Family& family);
    void CheckSection(const String& section);
    Family* FamilyOf(const NumberedName& name);
    void CheckMember(const Family& family, const String& section);
    void CheckItem(const String& section);
    void CheckKeying(const String& section);
    void CheckReferences(const String& section, Family& family);
    void ReportUnused(const Family& family);
    void ReportUnknown(const String& section, const NumberedName& name);

    Page& page_;
    PictureShelf& shelf_;
    Family fonts_{"Fonts", "Font_", "Fonts"};
    Family styles_{"TextStyles", "TextStyle_", "TextStyles"};
    Family themes_{"Themes", "Theme_"};
};

void ThemeSetLint::Check() {
    page_.CheckLooseKeys();
    page_.CheckKeys(kSetSection, {ThemeSetKeys()});
    for (Family* family : {&fonts_, &styles_, &themes_}) CheckCount(*family);
    for (const String& section : page_.File()->SectionNames()) CheckSection(section);
    ReportUnused(fonts_);
    ReportUnused(styles_);
}

void ThemeSetLint::CheckCount(Family& family) {
    family.count = page_.Integer(kSetSection, family.countKey);
    String missing;
    int32_t found = 0;
    for (int32_t n = 1; n <= family.count && found <= kMostNamed; ++n) {
        if (page_.Has(family.Section(n))) continue;
        if (++found <= kMostNamed)
            missing += (found > 1 ? ", [" : "[") + family.Section(n) + "]";
        else
            missing += " and more";
    }
    if (found > 0)
        page_.WarnAt(kSetSection, family.countKey,
                     String(family.countKey) + " is " + String::FromInt(family.count) + ", but " +
                         missing + (found > 1 ? " are" : " is") + " not there");
    const int32_t most = ApartmentLimits().themeSections;
    if (family.count > most)
        page_.FailAt(kSetSection, family.countKey,
                     String(family.countKey) + " is above " + String::FromInt(most) +
                         ", which ends the loading");
    if (&family == &themes_ && family.count < 1)
        page_.FailAt(kSetSection,
                     "no items; the key Themes says how many sections [Theme_01], "
                     "[Theme_02] ... there are");
}

Family* ThemeSetLint::FamilyOf(const NumberedName& name) {
    for (Family* family : {&fonts_, &styles_, &themes_})
        if (name.stem.EqualsNoCase(family->prefix)) return family;
    return nullptr;
}

void ThemeSetLint::CheckSection(const String& section) {
    if (section.EqualsNoCase(kSetSection)) return;
    const NumberedName name = SplitNumber(section);
    Family* family = FamilyOf(name);
    const bool proper =
        family && name.number >= 1 && section.EqualsNoCase(family->Section(name.number));
    if (!proper) return ReportUnknown(section, name);
    if (!family->Counts(name.number))
        return page_.WarnAt(section, "[" + section + "] is never read, since " + family->countKey +
                                         " of [ThemeSet] is " + String::FromInt(family->count));
    CheckMember(*family, section);
}

void ThemeSetLint::CheckMember(const Family& family, const String& section) {
    if (&family == &themes_) return CheckItem(section);
    if (&family == &fonts_) return CheckFont(page_, section);
    page_.CheckKeys(section, {TextStyleKeys()});
    CheckTextStyle(page_, section);
}

void ThemeSetLint::CheckItem(const String& section) {
    ItemLint item(page_, section, ThemeSetDialect());
    item.Check(shelf_, page_.Folder());
    CheckKeying(section);
    CheckReferences(section, fonts_);
    CheckReferences(section, styles_);
}

// A key colour counts only where nothing else decides what shows through.
void ThemeSetLint::CheckKeying(const String& section) {
    if (!page_.Has(section, "Image")) return;
    const int32_t mode = page_.Integer(section, "TransMode", "2");
    const int32_t alpha = page_.Integer(section, "ImageAlpha", "255");
    if (mode == Trans && alpha >= 1 && alpha <= 252)
        page_.WarnAt(section, "ImageAlpha",
                     "with an alpha from 1 to 252 the key colour of TransMode 1 shows");
    if (mode != Trans && page_.Has(section, "TransColor"))
        page_.WarnAt(section, "TransColor", "TransColor has no effect, since TransMode isn't 1");
    const bool keyed = page_.Integer(section, "GlyphTransMode", "2") == Trans;
    if (!keyed && page_.Has(section, "GlyphImage") && page_.Has(section, "GlyphTransColor"))
        page_.WarnAt(section, "GlyphTransColor",
                     "GlyphTransColor has no effect, since GlyphTransMode isn't 1");
}

// A number of 0 or below stands for none.
void ThemeSetLint::CheckReferences(const String& section, Family& family) {
    const String list = page_.Text(section, family.key);
    if (list.empty()) return;
    if (family.count == 0)
        return page_.FailAt(section, family.key,
                            "loading ends here, since " + String(family.countKey) +
                                " of [ThemeSet] is 0 or not given");
    String missing;
    for (const int32_t number : NumbersOf(list)) {
        if (family.Counts(number))
            family.used.insert(number);
        else if (number > 0 && missing.empty())
            missing = family.Section(number);
    }
    if (!missing.empty()) page_.WarnAt(section, family.key, "there is no [" + missing + "]");
}

void ThemeSetLint::ReportUnused(const Family& family) {
    for (const String& section : page_.File()->SectionNames()) {
        const NumberedName name = SplitNumber(section);
        const bool member = name.stem.EqualsNoCase(family.prefix) && family.Counts(name.number) &&
                            section.EqualsNoCase(family.Section(name.number));
        if (member && !family.used.contains(name.number))
            page_.WarnAt(section, "no item uses [" + section + "]");
    }
}

void ThemeSetLint::ReportUnknown(const String& section, const NumberedName& name) {
    std::vector<String> candidates{kSetSection};
    if (!name.digits.empty()) candidates = {fonts_.prefix, styles_.prefix, themes_.prefix};
    String nearest = NearestName(name.digits.empty() ? section : name.stem, candidates);
    if (!nearest.empty() && name.number >= 1)
        nearest = NumberedSection(nearest.Utf8().c_str(), name.number);
    page_.WarnAt(section, "nothing reads the section [" + section + "]" +
                              (nearest.empty() ? "" : "; did you mean [" + nearest + "]?"));
}

}  // namespace

bool IsThemeSet(const Page& page) { return page.Has(kSetSection); }

void CheckThemeSet(Page& page, PictureShelf& shelf) { ThemeSetLint(page, shelf).Check(); }

}  // namespace vxgui::lint
