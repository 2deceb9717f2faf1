#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "vxgui/surface/cAlphaDIBSection.h"

namespace CLI {
class App;
}

namespace vxgui::tool {

/// Pictures to read and where they go: one to a file, or any number to a folder.
struct Batch {
    std::vector<std::string> inputs;
    std::string output;
    std::string ending;  ///< of the files in the folder; empty when `output` is a file
};

/// Adds IN, -o and --to.
void AddBatchOptions(CLI::App& command, Batch& batch);

using Change = std::function<void(cAlphaDIBSection&)>;
/// Reads, changes (straight pixels, when there is a change) and writes each. What can't be done is
/// told at the end, in one `ToolError`, after all others have been done; a `UsageError` comes
/// before anything is touched.
void RunBatch(const Batch& batch, const Change& change, std::ostream& out, std::ostream& progress);

/// Calls `work` for each file, and then throws a `ToolError` with all that it threw.
void ForEachFile(const std::vector<std::string>& files,
                 const std::function<void(const std::string& file)>& work);

}  // namespace vxgui::tool
