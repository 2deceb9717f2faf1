#pragma once

#include <ostream>
#include <string>

namespace vxgui::tool {

/// Whether what is written to the stream is seen on a terminal.
bool IsTerminal(const std::ostream& stream);

/// A line that says how far a command has got. It is written over and over, and gone at the end;
/// one that isn't live stays silent, so that logs and pipes get no traces of it.
class Progress {
public:
    Progress(std::ostream& stream, size_t count, bool live)
        : stream_(stream), count_(count), live_(live) {}
    ~Progress() { Clear(); }
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    /// The next of the `count` files.
    void Next(const std::string& name);
    /// Takes the line away, before another is written.
    void Clear();

private:
    std::ostream& stream_;
    size_t count_;
    bool live_;
    size_t done_ = 0;
};

}  // namespace vxgui::tool
