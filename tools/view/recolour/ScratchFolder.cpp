#include "tools/view/recolour/ScratchFolder.h"

#include <cstdlib>
#include <filesystem>

#include "tools/vxgui/ToolError.h"

namespace vxgui::view {

namespace fs = std::filesystem;

ScratchFolder::ScratchFolder() : path_((fs::temp_directory_path() / "vxgui-view-XXXXXX").string()) {
    if (!::mkdtemp(path_.data())) tool::Fail(path_, "the folder can't be made");
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

}  // namespace vxgui::view
