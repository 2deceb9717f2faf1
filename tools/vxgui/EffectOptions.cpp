#include "tools/vxgui/EffectOptions.h"

#include <CLI/CLI.hpp>

#include "tools/vxgui/EffectReaders.h"
#include "tools/vxgui/ToolError.h"

namespace vxgui::tool {

struct EffectOption {
    const char* name;
    const char* form;
    const char* help;
    GpEffectType type;
    EffectRecord (*read)(const std::string& text);
};

namespace {

// In the order in which they are applied.
constexpr EffectOption kOptions[] = {
    {"--red-eye", "X,Y,WIDTH,HEIGHT", "Take the red out of an eye in this box of pixels",
     GpEffectType::RedEyeCorrection, ReadRedEye},
    {"--levels", "HIGHLIGHT,MIDTONE,SHADOW",
     "What lies above the highlight (0 to 100) becomes full, what lies below the shadow (0 to 100) "
     "nothing; the midtone (-100 to 100) lightens what is between. 100,0,0 changes nothing",
     GpEffectType::Levels, ReadThreeWhole},
    {"--brightness-contrast", "BRIGHTNESS,CONTRAST", "-255 to 255, and -100 to 100",
     GpEffectType::BrightnessContrast, ReadTwoWhole},
    {"--hue-saturation-lightness", "HUE,SATURATION,LIGHTNESS",
     "Degrees, -180 to 180, and -100 to 100 each", GpEffectType::HueSaturationLightness,
     ReadThreeWhole},
    {"--colour-balance", "RED,GREEN,BLUE",
     "-100 to 100 each: below 0 towards cyan, magenta and yellow", GpEffectType::ColorBalance,
     ReadThreeWhole},
    {"--tint", "HUE,AMOUNT",
     "More of a hue, or less: degrees from blue, -180 to 180, with 60 cyan, 120 green, -60 magenta "
     "and -120 red, and -100 to 100",
     GpEffectType::Tint, ReadTwoWhole},
    {"--curve", "KIND,CHANNEL,VALUE",
     "KIND exposure or density (-255 to 255), contrast, highlight, shadow or midtone (-100 to "
     "100), "
     "white or black (0 to 255); CHANNEL all, red, green or blue",
     GpEffectType::ColorCurve, ReadCurve},
    {"--colour-matrix", "M11,M12,...,M55",
     "25 numbers row by row; rows multiply red, green, blue, alpha and 1 from the left",
     GpEffectType::ColorMatrix, ReadColorMatrix},
    {"--colour-table", "FILE", "256 lines of R,G,B,A, what each value of a channel becomes",
     GpEffectType::ColorLUT, ReadTables},
    {"--blur", "RADIUS", "0 to 255 pixels", GpEffectType::blur, ReadBlur},
    {"--sharpen", "RADIUS,AMOUNT", "0 to 255 pixels, and 0 to 100 percent", GpEffectType::sharpen,
     ReadTwoNumbers},
};

Ref<GpEffect> Make(const EffectOption& option, const std::string& value) {
    const EffectRecord params = option.read(value);
    const Ref<GpEffect> effect = New<GpEffect>();
    effect->Create(option.type);
    if (!params || effect->SetParameters(params->data(), static_cast<uint32_t>(params->size())) !=
                       gdiplus::Ok) {
        throw UsageError(std::string(option.name) + " " + value + ": " + option.form +
                         " was expected: " + option.help);
    }
    return effect;
}

}  // namespace

void AddEffectOptions(CLI::App& command, const std::shared_ptr<WantedEffects>& wanted) {
    for (const EffectOption& option : kOptions) {
        command
            .add_option_function<std::vector<std::string>>(
                option.name,
                [wanted, &option](const std::vector<std::string>& values) {
                    for (const std::string& value : values)
                        wanted->wanted.push_back({&option, value});
                },
                option.help)
            ->type_name(option.form)
            ->allow_extra_args(false);
    }
}

std::vector<Ref<GpEffect>> MakeEffects(const WantedEffects& wanted) {
    if (wanted.wanted.empty()) {
        throw UsageError("nothing to do: an effect was expected, for example --blur 4");
    }
    std::vector<Ref<GpEffect>> effects;
    for (const auto& [option, value] : wanted.wanted) effects.push_back(Make(*option, value));
    return effects;
}

}  // namespace vxgui::tool
