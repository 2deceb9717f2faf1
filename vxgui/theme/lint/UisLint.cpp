#include <algorithm>
#include <optional>

#include "vxgui/theme/SkinParts.h"
#include "vxgui/theme/lint/ItemLint.h"
#include "vxgui/theme/lint/NearestName.h"
#include "vxgui/theme/lint/SkinLint.h"
#include "vxgui/theme/lint/UisPools.h"

namespace vxgui::lint {
namespace {

constexpr const char* kPoolSections[] = {"Colours", "Fonts", "SystemFonts"};
constexpr const char* kWhole = "; with one image missing the taskbar skin isn't used at all";

bool NamesPicture(const Page& page, const String& section) {
    return page.Has(section, "Image") || page.Has(section, "GlyphImage");
}

std::vector<String> KnownSections(bool inUis) {
    std::vector<String> names;
    for (const SkinPart& part : SkinParts())
        if (part.inUis == inUis) names.push_back(part.name);
    if (!inUis) return names;
    names.insert(names.end(), {"Personality", "XPTaskbar"});
    names.insert(names.end(), std::begin(kPoolSections), std::end(kPoolSections));
    return names;
}

/// The sections of items in one of the two files.
class Items {
public:
    /// Without pools the numbers of colours and fonts aren't looked at.
    Items(Page& page, bool inUis, const String& folder, PictureShelf& shelf, UisPools* pools)
        : page_(page), inUis_(inUis), folder_(folder), shelf_(shelf), pools_(pools) {}

    void CheckSection(const String& section) {
        const std::optional<SkinPart> part = FindSkinPart(section.view());
        if (part && part->inUis != inUis_)
            return page_.WarnAt(section, "[" + section + "] is read from the " +
                                             (inUis_ ? "taskbar's file" : "UIS file") +
                                             ", not from here");
        if (!part && !IsControl(section)) return;
        CheckItem(section, part ? part->image : "");
    }

private:
    // Sections of other names are the host's own controls, as far as they name a picture.
    bool IsControl(const String& section) {
        const bool control = NamesPicture(page_, section);
        const String nearest = NearestName(section, KnownSections(inUis_));
        if (!nearest.empty())
            page_.WarnAt(section, "[" + section + "] is no part; did you mean [" + nearest + "]?");
        else if (!control && !inUis_)
            page_.WarnAt(section, "nothing reads the section [" + section + "]");
        return control;
    }

    void CheckItem(const String& section, const char* image) {
        ItemLint item(page_, section, UisDialect());
        item.Check(shelf_, folder_, image, inUis_ ? "" : kWhole);
        CheckKeying(section, item.Image().IsNamed());
        CheckAnimation(section, item.Image());
        if (pools_) pools_->CheckReferences(page_, section);
    }

    // A key colour counts only where nothing else decides what shows through.
    void CheckKeying(const String& section, bool named) {
        if (!named || page_.Integer(section, "Trans") == 0) return;
        const int32_t alpha = page_.Integer(section, "Alpha", "255");
        const bool perPixel = page_.Integer(section, "PerPixel") != 0;
        if (perPixel && alpha >= 253)
            page_.WarnAt(section, "PerPixel",
                         "PerPixel has no effect with Trans, unless Alpha is below 253");
        if (!perPixel && alpha >= 1 && alpha <= 252)
            page_.WarnAt(section, "Alpha",
                         "with an alpha from 1 to 252 the key colour of Trans shows");
    }

    void CheckAnimation(const String& section, const StripLint& image) {
        static constexpr const char* kKeys[] = {"AnimTimerRate",        "LoopBackDelay",
                                                "MouseEnterStartFrame", "MouseOverStartFrame",
                                                "MouseOverStopFrame",   "MouseLeaveStopFrame",
                                                "MouseLeaveMode"};
        if (!image.IsWhole()) return;
        for (const char* key : kKeys) {
            if (!page_.Has(section, key)) continue;
            if (image.Frames() == 1)
                page_.WarnAt(section, key, String(key) + " is not read for an item of one frame");
            else if (FindKey(UisItemKeys(), key)->kind == ValueKind::FrameIndex &&
                     page_.Integer(section, key) >= image.Frames())
                page_.WarnAt(section, key,
                             String(key) + ": the strip has the frames 0 to " +
                                 String::FromInt(image.Frames() - 1));
        }
    }

    Page& page_;
    const bool inUis_;
    const String folder_;
    PictureShelf& shelf_;
    UisPools* pools_;
};

void CheckTaskbar(Page& page, const String& folder, PictureShelf& shelf, UisPools* pools) {
    page.CheckLooseKeys();
    if (page.File()->SectionNames().empty())
        return page.Fail("no sections; a taskbar skin without them isn't used");
    Items items(page, false, folder, shelf, pools);
    for (const String& section : page.File()->SectionNames()) items.CheckSection(section);
}

void CheckWallpaper(Page& page, PictureShelf& shelf) {
    const String name = page.Text("Personality", "Wallpaper");
    if (name.empty()) return;
    const PictureFacts& facts = shelf.Use(page.Folder(), name, true);
    if (!facts.exists)
        return page.FailAt("Personality", "Wallpaper", Quoted(name) + " is not there");
    if (facts.outside) page.WarnOfPlace("Personality", "Wallpaper", name);
}

// Parts that name no picture have one all the same, if it is there.
void UseDefaultPictures(const String& folder, PictureShelf& shelf) {
    for (const SkinPart& part : SkinParts())
        if (*part.image) shelf.Mark(folder, part.image);
}

// The taskbar's file as the reader looks for it; empty, and told, when it isn't there.
String TaskbarPath(Page& page) {
    const String name = page.Text("XPTaskbar", "File");
    const String path = core7::ThePathService().JoinPath(
        {page.Folder(), name.empty() ? String("XPStuff.xp") : name});
    if (core7::ThePathService().FileExists(path)) {
        if (!core7::IsWithin(path, page.Folder())) page.WarnOfPlace("XPTaskbar", "File", name);
        return path;
    }
    const String text = Quoted(name.empty() ? "XPStuff.xp" : name) +
                        " is not there; without a taskbar file the skin isn't used at all";
    name.empty() ? page.FailAt("XPTaskbar", text) : page.FailAt("XPTaskbar", "File", text);
    return {};
}

}  // namespace

bool IsUis(const Page& page) {
    return page.Has("XPTaskbar") || page.Has("Personality") || page.Has("Colour0");
}

bool IsTaskbar(const Page& page) {
    const std::vector<String> sections = page.File()->SectionNames();
    return std::ranges::any_of(sections, [](const String& section) {
        const std::optional<SkinPart> part = FindSkinPart(section.view());
        return part && !part->inUis;
    });
}

void CheckUis(Page& page, PictureShelf& shelf, std::vector<Page>& more) {
    UisPools pools(page);
    Items items(page, true, page.Folder(), shelf, &pools);
    page.CheckLooseKeys();
    CheckWallpaper(page, shelf);
    for (const String& section : page.File()->SectionNames()) {
        if (section.EqualsNoCase("Personality"))
            page.CheckSomeKeys(section, UisPersonalityKeys());
        else if (section.EqualsNoCase("XPTaskbar"))
            page.CheckSomeKeys(section, UisTaskbarKeys());
        else if (!pools.CheckSection(section))
            items.CheckSection(section);
    }
    if (const String path = TaskbarPath(page); !path.empty()) {
        Page& taskbar = more.emplace_back(path);
        if (taskbar.IsOpen()) CheckTaskbar(taskbar, page.Folder(), shelf, &pools);
        pools.ReportUnused();
    }
    UseDefaultPictures(page.Folder(), shelf);
}

void CheckTaskbarAlone(Page& page, PictureShelf& shelf) {
    CheckTaskbar(page, page.Folder(), shelf, nullptr);
    UseDefaultPictures(page.Folder(), shelf);
}

}  // namespace vxgui::lint
