#include "tools/vxgui/EffectOptions.h"

#include <CLI/CLI.hpp>
#include <array>
#include <cmath>
#include <cstring>
#include <map>
#include <optional>

#include "tools/vxgui/EffectTable.h"
#include "tools/vxgui/ToolError.h"
#include "vxgui/base/Variant.h"

namespace vxgui::tool {

// Answers the record of parameters, or none for a text that isn't of the form.
using Reader = std::optional<ByteArray> (*)(const std::string& text);

struct EffectOption {
    const char* name;
    const char* form;
    const char* help;
    GpEffectType type;
    Reader read;
};

namespace {

std::vector<std::string> PartsOf(const std::string& text) {
    std::vector<std::string> parts(1);
    for (const char c : text) {
        if (c == ',') {
            parts.emplace_back();
        } else {
            parts.back() += c;
        }
    }
    return parts;
}

template <class T>
ByteArray BytesOf(const T& record) {
    ByteArray bytes(sizeof record);
    std::memcpy(bytes.data(), &record, sizeof record);
    return bytes;
}

// A number in full, and a whole one for whole numbers.
template <class T>
bool ReadNumber(const std::string& text, T* number) {
    size_t used = 0;
    try {
        const double value = std::stod(text, &used);
        *number = static_cast<T>(std::fmax(-1e9, std::fmin(value, 1e9)));
        return used == text.size() && static_cast<double>(*number) - value < 1 &&
               (std::is_floating_point_v<T> || static_cast<double>(*number) == value);
    } catch (const std::exception&) {
        return false;
    }
}

template <class T, size_t kCount>
std::optional<std::array<T, kCount>> Numbers(const std::string& text) {
    const std::vector<std::string> parts = PartsOf(text);
    std::array<T, kCount> numbers;
    if (parts.size() != kCount) return std::nullopt;
    for (size_t i = 0; i < kCount; ++i) {
        if (!ReadNumber(parts[i], &numbers[i])) return std::nullopt;
    }
    return numbers;
}

// Most records are their numbers one after the other.
template <class T, size_t kCount>
std::optional<ByteArray> Plain(const std::string& text) {
    const auto numbers = Numbers<T, kCount>(text);
    return numbers ? std::optional(BytesOf(*numbers)) : std::nullopt;
}

std::optional<ByteArray> Blur(const std::string& text) {
    const auto radius = Numbers<float, 1>(text);
    return radius ? std::optional(BytesOf(BlurParams{radius->front(), 0})) : std::nullopt;
}

std::optional<ByteArray> RedEye(const std::string& text) {
    const auto box = Numbers<int32_t, 4>(text);
    if (!box) return std::nullopt;
    const auto& [x, y, width, height] = *box;
    return BytesOf(RedEyeCorrectionParams{1, {x, y, x + width, y + height}});
}

std::optional<ByteArray> Curve(const std::string& text) {
    const std::map<std::string, CurveAdjustments> adjustments = {
        {"exposure", AdjustExposure},     {"density", AdjustDensity},
        {"contrast", AdjustContrast},     {"highlight", AdjustHighlight},
        {"shadow", AdjustShadow},         {"midtone", AdjustMidtone},
        {"white", AdjustWhiteSaturation}, {"black", AdjustBlackSaturation}};
    const std::map<std::string, CurveChannel> channels = {{"all", CurveChannelAll},
                                                          {"red", CurveChannelRed},
                                                          {"green", CurveChannelGreen},
                                                          {"blue", CurveChannelBlue}};
    const std::vector<std::string> parts = PartsOf(text);
    int32_t value = 0;
    if (parts.size() != 3 || !adjustments.contains(parts[0]) || !channels.contains(parts[1]) ||
        !ReadNumber(parts[2], &value)) {
        return std::nullopt;
    }
    return BytesOf(ColorCurveParams{adjustments.at(parts[0]), channels.at(parts[1]), value});
}

std::optional<ByteArray> Table(const std::string& path) { return BytesOf(ReadEffectTable(path)); }

// In the order in which they are applied.
constexpr EffectOption kOptions[] = {
    {"--red-eye", "X,Y,WIDTH,HEIGHT", "Take the red out of an eye in this box of pixels",
     GpEffectType::RedEyeCorrection, RedEye},
    {"--levels", "HIGHLIGHT,MIDTONE,SHADOW",
     "What lies above the highlight (0 to 100) becomes full, what lies below the shadow (0 to 100) "
     "nothing; the midtone (-100 to 100) lightens what is between. 100,0,0 changes nothing",
     GpEffectType::Levels, Plain<int32_t, 3>},
    {"--brightness-contrast", "BRIGHTNESS,CONTRAST", "-255 to 255, and -100 to 100",
     GpEffectType::BrightnessContrast, Plain<int32_t, 2>},
    {"--hue-saturation-lightness", "HUE,SATURATION,LIGHTNESS",
     "Degrees, -180 to 180, and -100 to 100 each", GpEffectType::HueSaturationLightness,
     Plain<int32_t, 3>},
    {"--colour-balance", "RED,GREEN,BLUE",
     "-100 to 100 each: below 0 towards cyan, magenta and yellow", GpEffectType::ColorBalance,
     Plain<int32_t, 3>},
    {"--tint", "HUE,AMOUNT",
     "More of a hue, or less: degrees from blue, -180 to 180, with 60 cyan, 120 green, -60 magenta "
     "and -120 red, and -100 to 100",
     GpEffectType::Tint, Plain<int32_t, 2>},
    {"--curve", "KIND,CHANNEL,VALUE",
     "KIND exposure or density (-255 to 255), contrast, highlight, shadow or midtone (-100 to "
     "100), "
     "white or black (0 to 255); CHANNEL all, red, green or blue",
     GpEffectType::ColorCurve, Curve},
    {"--colour-matrix", "M11,M12,...,M55",
     "25 numbers row by row; rows multiply red, green, blue, alpha and 1 from the left",
     GpEffectType::ColorMatrix, Plain<float, 25>},
    {"--colour-table", "FILE", "256 lines of R,G,B,A, what each value of a channel becomes",
     GpEffectType::ColorLUT, Table},
    {"--blur", "RADIUS", "0 to 255 pixels", GpEffectType::blur, Blur},
    {"--sharpen", "RADIUS,AMOUNT", "0 to 255 pixels, and 0 to 100 percent", GpEffectType::sharpen,
     Plain<float, 2>},
};

Ref<GpEffect> Make(const EffectOption& option, const std::string& value) {
    const std::optional<ByteArray> params = option.read(value);
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
