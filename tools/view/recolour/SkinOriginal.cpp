#include "tools/view/recolour/SkinOriginal.h"

#include "tools/view/recolour/CompiledOriginal.h"
#include "tools/view/recolour/DefinedOriginal.h"
#include "tools/view/recolour/ScratchFolder.h"
#include "tools/view/recolour/StyleFolder.h"
#include "vxgui/theme/CompiledSkin.h"
#include "vxgui/theme/StyleModule.h"

namespace vxgui::view {

namespace {

// A style of a module, by way of the folder that it would be.
std::unique_ptr<SkinOriginal> OriginalOfStyle(const std::string& reference) {
    const ScratchFolder folder;
    return std::make_unique<DefinedOriginal>(WriteStyle(reference, folder.Path()));
}

}  // namespace

std::unique_ptr<SkinOriginal> OriginalOf(const std::string& path) {
    if (IsStyleReference(path)) return OriginalOfStyle(path);
    if (IsCompiledSkinFile(path)) return std::make_unique<CompiledOriginal>(path);
    return std::make_unique<DefinedOriginal>(path);
}

}  // namespace vxgui::view
