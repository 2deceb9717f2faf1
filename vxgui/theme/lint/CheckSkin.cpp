#include "vxgui/theme/lint/CheckSkin.h"

#include <algorithm>
#include <filesystem>
#include <tuple>

#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/lint/SkinLint.h"

namespace vxgui::lint {
namespace {

bool IsDefineName(const std::filesystem::path& path) {
    const String ending = String(path.extension().string()).Lower();
    static const String kEndings[] = {".theme", ".uis", ".xp", ".ini"};
    return std::ranges::count(kEndings, ending) > 0;
}

// Another skin in the same folder has its pictures there too.
void UsePicturesOfNeighbours(const Page& page, PictureShelf& shelf) {
    namespace fs = std::filesystem;
    const fs::path own = core7::NativePath(page.Path());
    std::error_code failed;
    for (const auto& entry : fs::directory_iterator(core7::NativePath(page.Folder()), failed)) {
        const fs::path& path = entry.path();
        const bool alike = path.extension() == own.extension() || IsDefineName(path);
        if (!alike || path.filename() == own.filename()) continue;
        const Page other(path.string());
        for (const String& section : other.File()->SectionNames()) {
            for (const char* key : {"Image", "GlyphImage", "Wallpaper"})
                if (const String name = other.Text(section, key); !name.empty())
                    shelf.Mark(page.Folder(), name);
        }
    }
}

std::vector<Finding> UnusedPictures(const Page& page, PictureShelf& shelf) {
    UsePicturesOfNeighbours(page, shelf);
    std::vector<Finding> findings;
    for (const std::string& path : shelf.UnusedIn(page.Folder()))
        findings.push_back({Severity::Warning, path, 1, 1, "no item uses this image"});
    return findings;
}

void Append(std::vector<Finding>& all, std::vector<Finding> more) {
    std::ranges::stable_sort(
        more, {}, [](const Finding& finding) { return std::tuple(finding.line, finding.column); });
    all.insert(all.end(), more.begin(), more.end());
}

std::vector<Finding> CheckCompiled(const String& path) try {
    LoadCompiledSkin(path);
    return {};
} catch (const Error& error) {
    return {{Severity::Error, path, 1, 1, error.Description()}};
}

void Refuse(Page& page) {
    page.Fail(
        "no section [ThemeSet]; a theme set begins with one that has the key Themes, and a "
        "skin in the UIS dialect has [XPTaskbar], [Personality] or [Colour0]");
}

}  // namespace

std::vector<Finding> CheckSkin(const String& path, PictureShelf& shelf) {
    if (IsCompiledSkinFile(path)) return CheckCompiled(path);
    Page page(path);
    std::vector<Page> more;
    std::vector<Finding> findings;
    bool known = page.IsOpen();
    shelf.BeginSkin();
    if (!known)
        return page.Findings();
    else if (IsThemeSet(page))
        CheckThemeSet(page, shelf);
    else if (IsUis(page))
        CheckUis(page, shelf, more);
    else if (IsTaskbar(page))
        CheckTaskbarAlone(page, shelf);
    else
        known = (Refuse(page), false);
    Append(findings, page.Findings());
    for (const Page& each : more) Append(findings, each.Findings());
    if (known) Append(findings, UnusedPictures(page, shelf));
    return findings;
}

std::vector<Finding> CheckSkin(const String& path) {
    PictureShelf shelf;
    return CheckSkin(path, shelf);
}

}  // namespace vxgui::lint
