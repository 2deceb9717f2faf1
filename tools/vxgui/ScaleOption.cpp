#include "tools/vxgui/ScaleOption.h"

#include <CLI/CLI.hpp>

#include "vxgui/theme/StripScales.h"

namespace vxgui::tool {
namespace {

// CLI11's own range lets through what is no number.
std::string CheckScale(const std::string& text) {
    double scale = 0;
    const bool number = CLI::detail::lexical_cast(text, scale);
    if (number && scale >= kSmallestScale && scale <= kLargestScale) return {};
    return "a number from 0.25 to 16 was expected";
}

}  // namespace

void AddScaleOption(CLI::App& command, double& scale) {
    command
        .add_option("--scale", scale,
                    "Pixels for one, on a high-resolution screen: 0.25 to 16, fractions too")
        ->check(CheckScale)
        ->default_str("1");
}

}  // namespace vxgui::tool
