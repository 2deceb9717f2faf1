#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace vxgui::fuzz {

/// A folder for what has to be a file, one for the whole run.
inline const std::string& ScratchFolder() {
    static const struct Folder {
        std::string path = "/tmp/vxgui-fuzz-XXXXXX";
        Folder() { path = ::mkdtemp(path.data()); }
        ~Folder() { std::filesystem::remove_all(path); }
    } folder;
    return folder.path;
}

/// Writes a file of the folder, and answers its path.
inline std::string WriteScratch(const char* name, std::string_view bytes) {
    const std::string path = ScratchFolder() + "/" + name;
    std::ofstream(path, std::ios::binary) << bytes;
    return path;
}

}  // namespace vxgui::fuzz
