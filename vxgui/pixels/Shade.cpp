#include "vxgui/pixels/Shade.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vxgui {
namespace {

constexpr double kGamma = 2.2;
// Steps of the table from light to stored values. It runs over the square root of the light,
// which follows the curve so closely that a step is less than half a stored value everywhere.
constexpr int kSteps = 2048;

float ToLight(float stored) { return static_cast<float>(std::pow(stored, kGamma)); }

const std::array<float, kSteps + 1>& StoredTable() {
    static const auto table = [] {
        std::array<float, kSteps + 1> values;
        for (int i = 0; i <= kSteps; ++i) {
            const double root = static_cast<double>(i) / kSteps;
            values[static_cast<size_t>(i)] = static_cast<float>(std::pow(root, 2 / kGamma));
        }
        return values;
    }();
    return table;
}

// What is no number counts as 0.
float Bounded(float value) { return value > 0 ? std::min(value, 1.0f) : 0; }

float FromLight(float light) {
    const float root = std::sqrt(Bounded(light));
    return StoredTable()[static_cast<size_t>(root * kSteps + 0.5f)];
}

float Channel(uint32_t color, int shift) { return static_cast<float>(color >> shift & 255) / 255; }

uint32_t Byte(float value) { return static_cast<uint32_t>(Bounded(value) * 255 + 0.5f); }

}  // namespace

Shade ShadeOf(uint32_t color, ShadeScale scale) {
    Shade shade{Channel(color, 16), Channel(color, 8), Channel(color, 0), Channel(color, 24)};
    if (scale == ShadeScale::Light) {
        for (float* part : {&shade.red, &shade.green, &shade.blue}) *part = ToLight(*part);
    }
    return shade;
}

uint32_t PixelOf(const Shade& shade, ShadeScale scale) {
    float parts[] = {shade.red, shade.green, shade.blue};
    if (scale == ShadeScale::Light) {
        for (float& part : parts) part = FromLight(part);
    }
    const uint32_t alpha = Byte(shade.alpha);
    // By the alpha that is stored, so that no colour exceeds it.
    const float factor = static_cast<float>(alpha) / 255;
    return alpha << 24 | Byte(parts[0] * factor) << 16 | Byte(parts[1] * factor) << 8 |
           Byte(parts[2] * factor);
}

}  // namespace vxgui
