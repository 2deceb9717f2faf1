#pragma once

#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "vxgui/base/String.h"

namespace vxgui::test {

/// A folder of its own for one test, removed at the end.
class TemporaryFolder {
public:
    TemporaryFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "vxgui-test-XXXXXX").string();
        path_ = ::mkdtemp(name.data());
    }
    ~TemporaryFolder() { std::filesystem::remove_all(path_); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    String Path() const { return path_.string(); }
    String Path(const std::string& name) const { return (path_ / name).string(); }
    String Write(const std::string& name, std::string_view bytes) const {
        std::filesystem::create_directories((path_ / name).parent_path());
        std::ofstream(path_ / name, std::ios::binary) << bytes;
        return Path(name);
    }

private:
    std::filesystem::path path_;
};

}  // namespace vxgui::test
