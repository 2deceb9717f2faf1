#include "tools/vxgui/Progress.h"

#include <unistd.h>

#include <iostream>

namespace vxgui::tool {

bool IsTerminal(const std::ostream& stream) {
    if (&stream == &std::cout) return isatty(STDOUT_FILENO);
    return &stream == &std::cerr && isatty(STDERR_FILENO);
}

void Progress::Next(const std::string& name) {
    ++done_;
    if (live_) stream_ << "\r\x1b[K[" << done_ << "/" << count_ << "] " << name << std::flush;
}

void Progress::Clear() {
    if (live_) stream_ << "\r\x1b[K" << std::flush;
}

}  // namespace vxgui::tool
