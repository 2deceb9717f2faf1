#include "vxgui/platform/kernel/Folders.h"

#include <dlfcn.h>
#include <link.h>

#include <filesystem>

#include "vxgui/platform/kernel.h"

namespace vxgui::kernel {

std::string OwnPath() {
    Dl_info info{};
    void* map = nullptr;
    if (!dladdr1(reinterpret_cast<void*>(&OwnPath), &info, &map, RTLD_DL_LINKMAP)) return {};
    const char* name = static_cast<link_map*>(map)->l_name;
    if (!name || !*name) return ProgramPath();  // the program itself has no name in the map
    std::error_code failed;
    const auto path = std::filesystem::canonical(name, failed);
    return failed ? name : path.string();
}

std::string ProgramPath() {
    std::error_code failed;
    const auto path = std::filesystem::read_symlink("/proc/self/exe", failed);
    return failed ? std::string() : path.string();
}

std::string FolderOf(const std::string& path) { return path.substr(0, path.rfind('/') + 1); }

String Kernel::GetProgramFileName() { return ProgramPath(); }

}  // namespace vxgui::kernel
