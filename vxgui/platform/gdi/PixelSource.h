#pragma once

#include <cstddef>
#include <cstdint>

namespace vxgui::gdi {

/// Where pixel memory comes from: the heap, unless a test puts pages with guards in its place.
class PixelSource {
public:
    virtual ~PixelSource();

    /// Null when there is none to be had. The heap's begin at multiples of 64, and from 2 MiB on at
    /// multiples of that.
    virtual uint8_t* Take(size_t size, bool cleared);
    virtual void GiveBack(uint8_t* bits);
    /// Whether a block may serve again for what is smaller.
    virtual bool IsReusable() const { return true; }

    static PixelSource& Current();
    /// For the whole process and all its length, before the first pixel.
    static void Replace(PixelSource& source);
};

}  // namespace vxgui::gdi
