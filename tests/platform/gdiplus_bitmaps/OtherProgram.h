#pragma once

#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

/// Pictures as ImageMagick's convert reads them. It takes a third of a second to start, so that one
/// call is to read all the pictures of a test.
namespace vxgui::test {

inline bool HasOtherProgram() {
    const char* const path = std::getenv("PATH");
    std::istringstream folders(path ? path : "");
    for (std::string folder; std::getline(folders, folder, ':');) {
        if (::access((folder + "/convert").c_str(), X_OK) == 0) return true;
    }
    return false;
}

/// The straight 32-bit pixels of what convert makes of these files, one picture behind another.
inline std::vector<uint32_t> DecodeByOtherProgram(const std::vector<std::string>& files) {
    std::string command = "convert";
    for (const std::string& file : files) command += " '" + file + "'";
    std::vector<uint32_t> pixels;
    FILE* pipe = ::popen((command + " -depth 8 bgra:- 2>/dev/null").c_str(), "r");
    uint32_t pixel = 0;
    while (pipe && std::fread(&pixel, 4, 1, pipe) == 1) pixels.push_back(pixel);
    if (pipe) ::pclose(pipe);
    return pixels;
}

}  // namespace vxgui::test
