#pragma once

#include <optional>

#include "vxgui/platform/gdiplus_formats.h"

namespace vxgui::gdiplus {

/// What a caller asks of an encoder; what an encoder doesn't know doesn't count.
struct SaveOptions {
    int quality = 75;                         ///< of a JPEG, 0 to 100
    std::optional<EncoderValue> transform;    ///< of a JPEG: how it is turned
    std::optional<EncoderValue> compression;  ///< of a TIFF
    std::optional<UINT> depth;                ///< of a TIFF: bits a pixel
    std::optional<EncoderValue> flag;         ///< several frames, another frame, or the end
};

/// Reads the first value of each parameter; none for a value that isn't there or has no number.
std::optional<SaveOptions> ReadOptions(const EncoderParameters* parameters);

}  // namespace vxgui::gdiplus
