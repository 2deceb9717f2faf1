#include <CLI/CLI.hpp>
#include <cstdio>
#include <memory>
#include <sstream>

#include "tools/vxgui/Batch.h"
#include "tools/vxgui/Commands.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/forms.h"

namespace vxgui::tool {
namespace {

struct Options {
    Batch batch;
    float hue = 0;
    float saturation = 0;
    float luminance = 0;
    bool colourize = false;
    bool hls = false;  ///< one of the four was given
    std::string rgb;
    bool dialog = false;
};

struct Fractions {
    float red = 0, green = 0, blue = 0;
};

// Written so that what is no number is outside too.
void CheckRange(const char* option, float value, float lowest, float highest) {
    if (value >= lowest && value <= highest) return;
    std::ostringstream text;
    text << option << " " << value << ": " << lowest << " to " << highest << " was expected";
    throw UsageError(text.str());
}

Fractions FractionsOf(const std::string& text) {
    Fractions rgb;
    char rest = 0;
    if (std::sscanf(text.c_str(), "%f,%f,%f%c", &rgb.red, &rgb.green, &rgb.blue, &rest) != 3) {
        throw UsageError("--rgb " + text + ": R,G,B was expected, for example 0.2,0,-0.1");
    }
    CheckRange("--rgb red", rgb.red, -1, 1);
    CheckRange("--rgb green", rgb.green, -1, 1);
    CheckRange("--rgb blue", rgb.blue, -1, 1);
    return rgb;
}

void Check(const Options& options) {
    if (!options.hls && options.rgb.empty() && !options.dialog) {
        throw UsageError(
            "nothing to adjust: --hue, --saturation, --luminance, --colourize, --rgb or "
            "--dialog was expected");
    }
    CheckRange("--hue", options.hue, -360, 360);
    const bool colourize = options.colourize;
    CheckRange(colourize ? "--saturation with --colourize" : "--saturation", options.saturation,
               colourize ? 0.0f : -100.0f, 100);
    CheckRange("--luminance", options.luminance, -100, 100);
}

// Why the library can show no dialog; empty when it can.
std::string NoDialogBecause() {
    std::string reason;
    core7::SetTraceSink([&](const String&, const String& text, int32_t) { reason = text.Utf8(); });
    const bool usable = forms::UsableToolkit() != nullptr;
    core7::SetTraceSink({});
    if (usable) return {};
    return reason.empty() ? "no form toolkit is there" : reason;
}

void AskForAdjustment(cAlphaDIBSection& surface) {
    const std::string reason = NoDialogBecause();
    if (!reason.empty()) throw std::runtime_error(reason);
    if (!surface.ShowAdjustHLS()) throw std::runtime_error("cancelled; nothing was written");
}

void Adjust(const Options& options, std::ostream& out, std::ostream& progress) {
    Check(options);
    const Fractions rgb = options.rgb.empty() ? Fractions() : FractionsOf(options.rgb);
    RunBatch(
        options.batch,
        [&](cAlphaDIBSection& surface) {
            if (options.hls) {
                surface.AdjustHLS(options.hue, options.luminance, options.saturation,
                                  options.colourize);
            }
            surface.AdjustRGB(rgb.red, rgb.green, rgb.blue);
            if (options.dialog) AskForAdjustment(surface);
        },
        out, progress);
}

void AddAdjustments(CLI::App& command, const std::shared_ptr<Options>& options) {
    const auto mark = [options](auto&&...) { options->hls = true; };
    command
        .add_option("--hue", options->hue,
                    "Degrees to turn the hue by, -360 to 360; with --colourize, the hue itself")
        ->each(mark);
    command
        .add_option("--saturation", options->saturation,
                    "Percent, -100 (grey) to 100; with --colourize 0 to 100")
        ->each(mark);
    command.add_option("--luminance", options->luminance, "Percent, -100 (black) to 100 (white)")
        ->each(mark);
    command.add_flag("--colourize", options->colourize, "Give every pixel the one hue")->each(mark);
    command.add_option("--rgb", options->rgb,
                       "R,G,B from -1 to 1 each: above 0 towards full, below 0 that much less; "
                       "after the others");
    command.add_flag("--dialog", options->dialog,
                     "Ask for hue, saturation and lightness in a window, picture by picture; "
                     "after the others");
}

}  // namespace

void AddAdjust(CLI::App& app, std::ostream& out, std::ostream& progress) {
    const auto options = std::make_shared<Options>();
    CLI::App* command = app.add_subcommand("adjust", "Change the colours of pictures");
    AddBatchOptions(*command, options->batch);
    AddAdjustments(*command, options);
    command->footer(
        "Examples:\n"
        "  vxgui adjust button.tga -o green.tga --hue 120\n"
        "  vxgui adjust button.png -o sepia.png --colourize --hue 35 --saturation 40\n"
        "  vxgui adjust strips/*.tga -o dark --to tga --luminance -30 --rgb 0,0,0.1\n"
        "  vxgui adjust --dialog button.png -o button2.png");
    command->callback([options, &out, &progress] { Adjust(*options, out, progress); });
}

}  // namespace vxgui::tool
