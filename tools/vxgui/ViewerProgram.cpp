#include "tools/vxgui/ViewerProgram.h"

#include <unistd.h>

#include <filesystem>
#include <stdexcept>

namespace vxgui::tool {
namespace {

namespace fs = std::filesystem;

constexpr const char* kName = "vxgui-view";

// Comes back only when the program can't be run.
void Become(const std::string& program, const std::vector<std::string>& arguments) {
    std::vector<char*> pointers{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments)
        pointers.push_back(const_cast<char*>(argument.c_str()));
    pointers.push_back(nullptr);
    ::execv(program.c_str(), pointers.data());
}

}  // namespace

std::vector<std::string> ViewerPlaces(const std::string& toolFolder) {
    const fs::path folder = toolFolder;
    return {(folder / kName).string(),
            (folder / "../libexec/vxgui" / kName).lexically_normal().string()};
}

void RunViewer(const std::vector<std::string>& places, const std::vector<std::string>& arguments) {
    std::string tried;
    for (const std::string& place : places) {
        Become(place, arguments);
        tried += (tried.empty() ? "" : " or ") + place;
    }
    throw std::runtime_error(
        "the window is a program of its own, vxgui-view, which is not there as " + tried +
        ". Install the package vxgui-viewer; or, since it is built where Qt 6 Widgets is, "
        "\"apt-get install qt6-base-dev\" on Debian, then configure and build anew");
}

}  // namespace vxgui::tool
