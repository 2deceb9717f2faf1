#pragma once

#include <memory>

#include "vxgui/platform/gdi/PixelSource.h"
#include "vxgui/platform/gdiplus_types.h"

namespace vxgui::gdiplus {

struct FreeBytes {
    void operator()(uint8_t* bytes) const { gdi::PixelSource::Current().GiveBack(bytes); }
};
using OwnedBytes = std::unique_ptr<uint8_t, FreeBytes>;

/// So many bytes of 0; throws `std::bad_alloc` for what can't be had.
OwnedBytes ZeroedBytes(size_t size);

/// Rows of pixels in memory.
struct PixelMemory {
    INT width = 0;
    INT height = 0;
    PixelFormat format = PixelFormatUndefined;
    INT stride = 0;            ///< from a row to the one below it
    uint8_t* first = nullptr;  ///< the top row
    OwnedBytes owned;          ///< null where the memory is somebody else's

    uint8_t* Row(INT y) const { return first + static_cast<ptrdiff_t>(y) * stride; }

    /// Memory of its own, all bytes 0, the top row first. The sizes are above 0.
    static PixelMemory Zeroed(INT width, INT height, PixelFormat format);
};

}  // namespace vxgui::gdiplus
