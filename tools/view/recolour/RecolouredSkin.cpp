#include "tools/view/recolour/RecolouredSkin.h"

#include <filesystem>

#include "tools/view/recolour/ScratchFolder.h"
#include "tools/vxgui/ToolError.h"

namespace vxgui::view {
namespace fs = std::filesystem;

Skin LoadRecoloured(const SkinOriginal& original, const Recolour& how) {
    const ScratchFolder folder;
    return LoadSkin(original.Write(folder.Path(), how, SkinOriginal::Extent::Items));
}

std::string SaveRecoloured(const SkinOriginal& original, const Recolour& how,
                           const std::string& folder) {
    std::error_code failed;
    fs::create_directories(folder, failed);
    if (failed) tool::Fail(folder, "the folder can't be made: " + failed.message());
    if (!fs::is_empty(folder, failed))
        tool::Fail(folder, "there is something in it; a new skin needs a folder of its own");
    return original.Write(folder, how, SkinOriginal::Extent::Whole);
}

}  // namespace vxgui::view
