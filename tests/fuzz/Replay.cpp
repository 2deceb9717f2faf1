#include "tests/fuzz/Replay.h"

#include <algorithm>
#include <map>

#include "tests/fuzz/Sample.h"

namespace vxgui::fuzz {
namespace {

std::map<std::string, Fuzzer>& Fuzzers() {
    static std::map<std::string, Fuzzer> fuzzers;
    return fuzzers;
}

std::vector<std::filesystem::path> FilesIn(const std::filesystem::path& folder) {
    std::vector<std::filesystem::path> files;
    if (!std::filesystem::exists(folder)) return files;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

}  // namespace

bool Enter(const char* name, Fuzzer fuzzer) { return Fuzzers().emplace(name, fuzzer).second; }

std::vector<std::string> FuzzerNames() {
    std::vector<std::string> names;
    for (const auto& [name, fuzzer] : Fuzzers()) names.push_back(name);
    return names;
}

size_t Replay(const std::string& name, const std::filesystem::path& folder) {
    const std::vector<std::filesystem::path> files = FilesIn(folder);
    for (const auto& path : files) {
        SCOPED_TRACE(path.string());
        const std::string bytes = FileText(path);
        Fuzzers().at(name)({reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size()});
    }
    return files.size();
}

}  // namespace vxgui::fuzz
