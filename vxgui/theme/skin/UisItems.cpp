#include "vxgui/theme/skin/UisItems.h"

#include "vxgui/theme/SkinParts.h"
#include "vxgui/theme/skin/SkinReport.h"

namespace vxgui {
namespace {

bool Has(core7::DefineFile& file, const String& section) {
    return file.PositionOf(section).line > 0;
}

bool HasKey(core7::DefineFile& file, const String& section, const char* key) {
    return file.PositionOf(section, key).line > 0;
}

bool NamesPicture(core7::DefineFile& file, const String& section) {
    return HasKey(file, section, "Image") || HasKey(file, section, "GlyphImage");
}

bool IsPart(const String& section) { return FindSkinPart(section.view()).has_value(); }

// The dialect has no captions; this one is short enough for nine states side by side.
const char* const kCaption = "Text";

/// One of the two define files of a skin.
struct Dialect {
    Ref<core7::DefineFile> file;
    String label;  ///< how its lines are named in a report
};

/// Gathers the items of a skin that is open.
class Gatherer {
public:
    Gatherer(Skin& skin, const String& taskbarLabel, const String& folder)
        : skin_(skin),
          uis_{skin.file, skin.path},
          taskbar_{skin.desktop->TaskbarFile(), taskbarLabel},
          folder_(folder) {}

    void Gather() {
        if (!folder_.empty()) AddControls();
        for (const SkinPart& part : SkinParts()) AddPart(part);
        for (const String& section : taskbar_.file->SectionNames()) {
            if (!IsPart(section) && NamesPicture(*taskbar_.file, section))
                Add(taskbar_, section, "", skin_.desktop->Item(section));
        }
        report_.ThrowIfAny();
        if (skin_.items.empty()) RefuseSkin(skin_.path, "no section of the skin has an image");
    }

private:
    // Sections of the UIS file that aren't parts of the desktop are the host's own controls.
    void AddControls() {
        for (const String& section : uis_.file->SectionNames()) {
            if (IsPart(section) || !NamesPicture(*uis_.file, section)) continue;
            const Ref<ThemeItem> item = New<ThemeItem>();
            item->Owner(skin_.desktop);
            item->FromUis(uis_.file, folder_, section, "");
            Add(uis_, section, "", item);
        }
    }

    // A skin may leave parts out.
    void AddPart(const SkinPart& part) {
        const Dialect& from = part.inUis ? uis_ : taskbar_;
        const Ref<ThemeItem> item = skin_.desktop->Item(part.name);
        if (item && (Has(*from.file, part.name) || item->Image()))
            Add(from, part.name, part.image, item);
    }

    void Add(const Dialect& from, const String& section, const char* image,
             const Ref<ThemeItem>& item) {
        if (!item) return;
        Check(from, section, "Image", image, item->Image() != nullptr);
        Check(from, section, "GlyphImage", "", item->Glyph() != nullptr);
        String caption;
        if (HasKey(*from.file, section, "NormalColour") ||
            HasKey(*from.file, section, "TextColour")) {
            caption = kCaption;
            StyleCaption(*from.file, section, *item);
        }
        const bool ofDesktop = &from == &taskbar_ || IsPart(section);
        skin_.items.push_back({section, section, caption, item, ofDesktop});
    }

    void Check(const Dialect& from, const String& section, const char* key, const char* fallback,
               bool loaded) {
        const bool named = HasKey(*from.file, section, key);
        CheckPicture(from.label,
                     named ? from.file->PositionOf(section, key) : from.file->PositionOf(section),
                     folder_, from.file->GetString(section, key, fallback), loaded, report_);
    }

    // The dialect gives colours and alignment, from which a host makes its text styles.
    static void StyleCaption(core7::DefineFile& file, const String& section, ThemeItem& item) {
        for (int32_t state = 0; state < E_ItemStateMax; ++state) {
            const int32_t colour = item.StateColour(state);
            if (colour < 0) continue;
            const Ref<TextStyle> style = New<TextStyle>();
            style->TextColor = colour;
            style->TextAlignHorz = file.GetInteger(section, "TextHorzAlignNormal", "0");
            style->TextAlignVert = file.GetInteger(section, "TextVertAlignNormal", "0");
            item.StateTextStyle(state, style);
        }
    }

    Skin& skin_;
    const Dialect uis_;
    const Dialect taskbar_;
    const String folder_;  ///< empty for a style of a module
    SkinReport report_;
};

}  // namespace

void GatherUisItems(Skin& skin, const String& taskbarLabel, const String& folder) {
    Gatherer(skin, taskbarLabel, folder).Gather();
}

}  // namespace vxgui
