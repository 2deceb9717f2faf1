#pragma once

#include <cstddef>
#include <cstdint>

#include "vxgui/base/Export.h"

/// What every reader of pictures keeps to before it allocates.
namespace vxgui::codecs {

/// Bounds on a picture that is to be decoded. A header that asks for more is refused: a file of
/// twenty bytes can name a picture of gigabytes.
struct DecodeLimits {
    int32_t side = 32767;              ///< pixels of either side, the coordinate range of blits
    int64_t area = 64 << 20;           ///< pixels
    size_t bytes = size_t{256} << 20;  ///< of decoded pixels, and of a decoder's working memory

    /// Whether a picture of this size may be decoded to 32-bit pixels. An empty one may not.
    bool Allow(int64_t width, int64_t height) const {
        return width > 0 && height > 0 && width <= side && height <= side &&
               width * height <= area && static_cast<uint64_t>(width * height) * 4 <= bytes;
    }
};

/// The bounds of the calling apartment, for its host to set.
VXPLATFORM_API DecodeLimits& ApartmentDecodeLimits();

}  // namespace vxgui::codecs
