#include <CLI/CLI.hpp>
#include <memory>

#include "tools/vxgui/Batch.h"
#include "tools/vxgui/Commands.h"

namespace vxgui::tool {

void AddConvert(CLI::App& app, std::ostream& out, std::ostream& progress) {
    const auto batch = std::make_shared<Batch>();
    CLI::App* command =
        app.add_subcommand("convert", "Convert pictures and serialized surfaces into each other");
    AddBatchOptions(*command, *batch);
    command->footer(
        "Examples:\n"
        "  vxgui convert button.png -o button.tga\n"
        "  vxgui convert button.bag -o button.adib\n"
        "  vxgui convert icons/*.png photo.jpg -o strips --to tga");
    command->callback([batch, &out, &progress] { RunBatch(*batch, {}, out, progress); });
}

}  // namespace vxgui::tool
