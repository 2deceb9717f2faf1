#include "vxgui/platform/gdiplus/bitmap/PixelMemory.h"

#include <algorithm>
#include <limits>
#include <new>

#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"
#include "vxgui/platform/limits.h"

namespace vxgui::gdiplus {

OwnedBytes ZeroedBytes(size_t size) {
    OwnedBytes bytes(gdi::PixelSource::Current().Take(size, true));
    if (!bytes) throw std::bad_alloc();
    return bytes;
}

// The published interface counts bytes of a bitmap in 32 bits.
PixelMemory PixelMemory::Zeroed(INT width, INT height, PixelFormat format) {
    constexpr auto kCounted = static_cast<size_t>(std::numeric_limits<INT>::max());
    const size_t most = std::min(kCounted, ApartmentLimits().imageBytes);
    const size_t stride = PaddedRowBytes(format, static_cast<size_t>(width));
    if (stride > most / static_cast<size_t>(height)) throw std::bad_alloc();
    OwnedBytes bytes = ZeroedBytes(stride * static_cast<size_t>(height));
    uint8_t* const first = bytes.get();
    return {width, height, format, static_cast<INT>(stride), first, std::move(bytes)};
}

}  // namespace vxgui::gdiplus
