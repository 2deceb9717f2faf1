#include "tools/vxgui/html/HtmlGallery.h"

#include <cstdio>
#include <filesystem>

#include "tools/vxgui/DesktopScene.h"
#include "tools/vxgui/html/DataUri.h"
#include "tools/vxgui/html/HtmlItems.h"
#include "tools/vxgui/html/HtmlLooks.h"
#include "tools/vxgui/html/HtmlText.h"
#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/ScaledLength.h"
#include "vxgui/theme/StyleModule.h"
#include "vxgui/theme/lint/CheckSkin.h"

namespace vxgui::tool {
namespace {

using kainjow::mustache::data;

std::string NameOf(const Skin& skin) {
    if (IsStyleReference(skin.path)) return ParseStyleReference(skin.path).style.Utf8();
    return std::filesystem::path(skin.path.Utf8()).stem().string();
}

std::string KindOf(const Skin& skin) {
    if (IsStyleReference(skin.path)) return "Style of a module";
    if (skin.desktop) return "Skin in the UIS dialect";
    return IsCompiledSkinFile(skin.path) ? "Compiled skin" : "Theme set";
}

std::string Counted(size_t count, const std::string& what) {
    return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

data StateNames() {
    data names(data::type::list);
    for (int32_t state = 0; state < E_ItemStateMax; ++state) {
        data name;
        name.set("state", ThemeItem::StateName(state).Utf8());
        names << name;
    }
    return names;
}

data DesktopOf(const Skin& skin, double scale) {
    if (!skin.desktop) return data(false);
    Sheet sheet(ScaledLength(kSceneWidth, scale), ScaledLength(kSceneHeight, scale));
    PaintDesktop(sheet, skin, scale);
    sheet.MakeOpaque();
    data scene;
    scene.set("src", DataUri(sheet));
    scene.set("width", std::to_string(kSceneWidth));
    scene.set("height", std::to_string(kSceneHeight));
    return scene;
}

// Seen from the skin's folder: who gets the page has other folders.
std::string PlaceOf(const lint::Finding& finding, const Skin& skin) {
    namespace fs = std::filesystem;
    const fs::path folder = fs::absolute(skin.path.Utf8()).parent_path();
    return fs::absolute(finding.path.Utf8()).lexically_relative(folder).string() + ":" +
           std::to_string(finding.line) + ":" + std::to_string(finding.column);
}

data FindingsOf(const Skin& skin) {
    data list(data::type::list);
    if (IsStyleReference(skin.path)) return list;
    for (const lint::Finding& finding : lint::CheckSkin(skin.path)) {
        data entry;
        entry.set("severity", finding.severity == lint::Severity::Error ? "error" : "warning");
        entry.set("place", PlaceOf(finding, skin));
        entry.set("text", finding.text.Utf8());
        list << entry;
    }
    return list;
}

// Why there are no findings.
data NoteOn(const Skin& skin, const data& findings) {
    if (IsStyleReference(skin.path)) return data("Styles of modules aren't checked.");
    return findings.list_value().empty() ? data("No problems.") : data(false);
}

// An empty list takes its heading with it.
void SetList(data& page, const char* name, const char* count, const char* has, const data& list) {
    const size_t size = list.list_value().size();
    page.set(name, list);
    page.set(count, std::to_string(size));
    page.set(has, data(size > 0));
}

data ScaleText(double scale) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", scale);
    return scale == 1 ? data(false) : data(std::string(text));
}

}  // namespace

std::string HtmlGallery(const Skin& skin, double scale) {
    data page;
    page.set("style", kGalleryStyle);
    page.set("script", kGalleryScript);
    page.set("name", NameOf(skin));
    page.set("kind", KindOf(skin));
    page.set("counts", Counted(skin.items.size(), "item"));
    page.set("scale", ScaleText(scale));
    page.set("states", StateNames());
    page.set("desktop", DesktopOf(skin, scale));
    const data findings = FindingsOf(skin);
    SetList(page, "items", "itemCount", "hasItems", HtmlItems(skin, scale));
    SetList(page, "colours", "colourCount", "hasPalette", HtmlColours(skin));
    SetList(page, "fonts", "fontCount", "hasFonts", HtmlFonts(skin, scale));
    SetList(page, "findings", "findingCount", "hasFindings", findings);
    page.set("note", NoteOn(skin, findings));
    return kainjow::mustache::mustache(kGalleryPage).render(page);
}

}  // namespace vxgui::tool
