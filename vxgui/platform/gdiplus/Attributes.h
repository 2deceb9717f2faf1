#pragma once

#include <array>
#include <optional>
#include <span>
#include <vector>

#include "vxgui/platform/gdiplus/FlatObject.h"
#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

/// What one kind of drawing (`ColorAdjustType`) does to colours.
struct ColorAdjustment {
    struct Matrices {
        ColorMatrix color;
        ColorMatrix gray;
        ColorMatrixFlags flags;
    };
    struct Keys {
        ARGB low, high;
    };

    bool noOp = false;
    std::optional<Matrices> matrices;
    std::optional<REAL> threshold;
    std::optional<REAL> gamma;
    std::optional<Keys> keys;
    std::optional<ColorChannelFlags> outputChannel;
    std::vector<ColorMap> remap;
};

/// What an attributes handle names.
class ImageAttributes final : public FlatObject {
public:
    std::array<std::optional<ColorAdjustment>, ColorAdjustTypeCount> adjustments;
    WrapMode wrap = WrapModeClamp;
    ARGB outside = 0;  ///< the colour beyond the image under `WrapModeClamp`

    /// What applies to `type`: its own setting, else that of `ColorAdjustTypeDefault`; null for
    /// none at all.
    const ColorAdjustment* For(ColorAdjustType type) const;
};

/// Adjusts straight 32-bit pixels in place, in the published order of the steps.
void Adjust(const ColorAdjustment& adjustment, std::span<ARGB> pixels);

}  // namespace vxgui::gdiplus
