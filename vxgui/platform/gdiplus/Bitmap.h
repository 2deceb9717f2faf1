#pragma once

#include <memory>
#include <optional>
#include <span>

#include "vxgui/platform/gdiplus/Image.h"
#include "vxgui/platform/gdiplus/bitmap/Palette.h"
#include "vxgui/platform/gdiplus/bitmap/PixelMemory.h"

namespace vxgui::gdiplus {

/// A picture of pixels of any published format, in memory of its own or of the caller's.
class Bitmap final : public Image {
public:
    explicit Bitmap(PixelMemory memory)
        : memory_(std::move(memory)), palette_(DefaultPalette(memory_.format)) {}

    /// All bytes 0. None for a size of 0 or less; throws `std::bad_alloc` for one that memory
    /// can't hold.
    static Ref<Bitmap> Create(INT width, INT height, PixelFormat format);

    UINT Width() const override { return static_cast<UINT>(memory_.width); }
    UINT Height() const override { return static_cast<UINT>(memory_.height); }
    PixelFormat Format() const { return memory_.format; }
    /// From a row to the one below it; negative where the bottom row is the first in memory.
    INT Stride() const { return memory_.stride; }
    /// The bytes of a row; the top one is 0.
    uint8_t* Row(INT y) { return memory_.Row(y); }
    const uint8_t* Row(INT y) const { return memory_.Row(y); }

    /// The colours of an indexed bitmap; others have what was set, and it doesn't count.
    const Palette& Colors() const { return palette_; }
    void Colors(Palette palette) { palette_ = std::move(palette); }

    /// Pixels from (x, y) to the right as 32-bit ones, blue lowest. They must lie in the bitmap.
    void ReadStraight(INT x, INT y, std::span<ARGB> to) const;
    void ReadPremultiplied(INT x, INT y, std::span<ARGB> to) const;
    /// The reverse. In an indexed bitmap each becomes the nearest colour of the palette.
    void WriteStraight(INT x, INT y, std::span<const ARGB> from);
    /// The same, but a pixel that is already what it shall be stays to the bit: multiplying by the
    /// alpha and back would change a straight one, and deeper ones would lose bits.
    void WritePremultiplied(INT x, INT y, std::span<const ARGB> from);

    /// Everything but a lock; memory of its own.
    Ref<Bitmap> Copy() const;
    /// A part in any format. Into its own, indexes and colours stay; another indexed one gets the
    /// standard palette. The area must lie in the bitmap.
    Ref<Bitmap> CopyArea(const GpRect& area, PixelFormat format) const;
    /// The whole.
    GpRect Bounds() const { return {0, 0, memory_.width, memory_.height}; }

    bool Contains(const GpRect& area) const;
    /// While it is, all but getters of numbers answer `ObjectBusy`.
    bool IsLocked() const { return lock_.has_value(); }
    GpStatus Lock(const GpRect& area, UINT flags, PixelFormat format, BitmapData* data);
    GpStatus Unlock(const BitmapData& data);

    /// Exchanges pixels, size, format and palette with another's; for operations on the whole.
    void ExchangePixels(Bitmap& other);

private:
    struct HeldLock {
        GpRect area;
        UINT flags;
        PixelFormat format;
        INT stride;
        uint8_t* pixels;    ///< what the caller was shown
        OwnedBytes buffer;  ///< null where `pixels` are the bitmap's or the caller's
        bool copied;        ///< `pixels` aren't the bitmap's own
    };

    bool OpensInPlace(const GpRect& area, UINT flags, PixelFormat format) const;
    /// Copies the lock's pixels out of the bitmap, or back.
    void Fill(const HeldLock& lock) const;
    void TakeBack(const HeldLock& lock);

    PixelMemory memory_;
    Palette palette_;
    std::optional<HeldLock> lock_;
};

}  // namespace vxgui::gdiplus
