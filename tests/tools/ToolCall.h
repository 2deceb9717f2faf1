#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "generated/Places.h"
#include "tools/vxgui/Tool.h"
#include "vxgui/base/Variant.h"

/// What the tests of every subcommand share.
namespace vxgui::tool {

inline const std::string kImages = VXGUI_SOURCE_DIR "/tests/data/images/";

/// A folder of the running test's own: tests run at the same time.
inline std::string Folder() {
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    const std::string folder =
        std::string(VXGUI_TEST_OUTPUT_DIR "/tool/") + test->test_suite_name() + "." + test->name();
    std::filesystem::create_directories(folder);
    return folder + "/";
}

struct Result {
    int status;
    std::string out;
    std::string errors;
};

inline Result Call(std::vector<std::string> arguments) {
    std::ostringstream out, errors;
    const int status = RunTool(std::move(arguments), out, errors);
    return {status, out.str(), errors.str()};
}

/// Makes a file in the tests' folder and answers its path.
inline std::string WriteBytes(const std::string& name, const ByteArray& bytes) {
    std::ofstream(Folder() + name, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
    return Folder() + name;
}

inline ByteArray BytesOfFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// What another program says.
inline std::string OutputOf(const std::string& command) {
    std::string output;
    FILE* pipe = ::popen(command.c_str(), "r");
    char buffer[4096];
    while (const size_t count = std::fread(buffer, 1, sizeof buffer, pipe))
        output.append(buffer, count);
    ::pclose(pipe);
    return output;
}

}  // namespace vxgui::tool
