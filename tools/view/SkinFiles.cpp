#include "tools/view/SkinFiles.h"

#include <algorithm>

#include "tools/view/SkinDefines.h"
#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/StyleModule.h"

namespace vxgui::view {
namespace {

void KeepEachOnce(std::vector<std::string>& paths) {
    std::ranges::sort(paths);
    const auto more = std::ranges::unique(paths);
    paths.erase(more.begin(), more.end());
}

SkinFiles ModuleOf(const std::string& reference) try {
    return {{core7::NativePath(FindStyleModule(ParseStyleReference(reference).module, ""))}, {}};
} catch (const Error&) {
    return {};
}

}  // namespace

SkinFiles FilesOfSkin(const std::string& path) {
    if (IsStyleReference(path)) return ModuleOf(path);
    if (IsCompiledSkinFile(path)) return {{path}, {}};
    const SkinDefines skin(path);
    SkinFiles files;
    for (const DefineText& define : skin.Defines()) files.defines.push_back(define.path);
    for (const PictureUse& use : skin.Pictures()) files.pictures.push_back(use.path);
    KeepEachOnce(files.pictures);
    return files;
}

}  // namespace vxgui::view
