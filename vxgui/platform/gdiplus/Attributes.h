#pragma once

#include <array>
#include <optional>
#include <span>
#include <vector>

#include "vxgui/base/String.h"
#include "vxgui/pixels/ByteTable.h"
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
    std::optional<Keys> keys;
    std::vector<ColorMap> remap;  ///< by ascending old colour, each of them once
    std::optional<Matrices> matrices;
    std::optional<ByteTable> gamma;
    std::optional<ByteTable> threshold;
    std::optional<ColorChannelFlags> outputChannel;
    std::optional<String> outputProfile;  ///< kept; the separation is by its own formula

    /// True when nothing is set, not even that nothing is to be done.
    bool IsEmpty() const {
        return !noOp && !keys && remap.empty() && !matrices && !gamma && !threshold &&
               !outputChannel && !outputProfile;
    }
};

/// What an attributes handle names.
class ImageAttributes final : public FlatObject {
public:
    std::array<std::optional<ColorAdjustment>, ColorAdjustTypeCount> adjustments;
    WrapMode wrap = WrapModeClamp;
    ARGB outside = 0;      ///< the colour beyond the image under `WrapModeClamp`
    bool wrapSet = false;  ///< the two above were given
    bool icmMode = false;
    bool cachedBackground = false;

    /// What applies to `type`: its own setting, else that of `ColorAdjustTypeDefault`; null for
    /// none at all.
    const ColorAdjustment* For(ColorAdjustType type) const;
};

/// Adjusts straight 32-bit pixels in place. The steps, each when it is set: keys, remap, matrix,
/// gamma, threshold, output channel; no-op skips them all.
void Adjust(const ColorAdjustment& adjustment, std::span<ARGB> pixels);

}  // namespace vxgui::gdiplus
