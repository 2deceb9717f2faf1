#include "tools/vxgui/EffectReaders.h"

#include <array>
#include <cmath>
#include <cstring>
#include <map>
#include <vector>

#include "tools/vxgui/EffectTable.h"

namespace vxgui::tool {
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

template <class T, size_t kCount>
EffectRecord Plain(const std::string& text) {
    const auto numbers = Numbers<T, kCount>(text);
    return numbers ? EffectRecord(BytesOf(*numbers)) : std::nullopt;
}

}  // namespace

EffectRecord ReadTwoWhole(const std::string& text) { return Plain<int32_t, 2>(text); }
EffectRecord ReadThreeWhole(const std::string& text) { return Plain<int32_t, 3>(text); }
EffectRecord ReadTwoNumbers(const std::string& text) { return Plain<float, 2>(text); }
EffectRecord ReadColorMatrix(const std::string& text) { return Plain<float, 25>(text); }

EffectRecord ReadBlur(const std::string& text) {
    const auto radius = Numbers<float, 1>(text);
    return radius ? EffectRecord(BytesOf(BlurParams{radius->front(), 0})) : std::nullopt;
}

EffectRecord ReadRedEye(const std::string& text) {
    const auto box = Numbers<int32_t, 4>(text);
    if (!box) return std::nullopt;
    const auto& [x, y, width, height] = *box;
    return BytesOf(RedEyeCorrectionParams{1, {x, y, x + width, y + height}});
}

EffectRecord ReadCurve(const std::string& text) {
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

EffectRecord ReadTables(const std::string& path) { return BytesOf(ReadEffectTable(path)); }

}  // namespace vxgui::tool
