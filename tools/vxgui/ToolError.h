#pragma once

#include <stdexcept>
#include <string>

namespace vxgui::tool {

/// What a user did to a file: the message names the file, the line where there is one, and what
/// was expected. It may hold several lines.
class ToolError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

[[noreturn]] inline void Fail(const std::string& path, const std::string& text) {
    throw ToolError(path + ": error: " + text);
}

/// The same with the reason that the system gave last.
[[noreturn]] void FailBySystem(const std::string& path, const std::string& what);

/// A command line that can't be carried out.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

}  // namespace vxgui::tool
