#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

/// Pictures as ImageMagick's convert reads them.
namespace vxgui::test {

inline bool HasOtherProgram() {
    static const bool has = std::system("convert -version > /dev/null 2>&1") == 0;
    return has;
}

/// The straight 32-bit pixels of what convert makes of these arguments.
inline std::vector<uint32_t> DecodeByOtherProgram(const std::string& arguments) {
    std::vector<uint32_t> pixels;
    FILE* pipe = ::popen(("convert " + arguments + " -depth 8 bgra:- 2>/dev/null").c_str(), "r");
    uint32_t pixel = 0;
    while (pipe && std::fread(&pixel, 4, 1, pipe) == 1) pixels.push_back(pixel);
    if (pipe) ::pclose(pipe);
    return pixels;
}

}  // namespace vxgui::test
