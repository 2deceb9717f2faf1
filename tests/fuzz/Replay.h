#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "fuzz/Fuzz.h"

namespace vxgui::fuzz {

/// All fuzzers of the project, by name.
std::vector<std::string> FuzzerNames();

/// Gives each file of a folder to the fuzzer of that name; the number of files.
size_t Replay(const std::string& name, const std::filesystem::path& folder);

}  // namespace vxgui::fuzz
