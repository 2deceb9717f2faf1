#include "vxgui/surface/modDraw.h"

#include <algorithm>
#include <span>

#include "vxgui/frame/Report.h"
#include "vxgui/pixels/Blend.h"
#include "vxgui/pixels/Premultiply.h"
#include "vxgui/platform/gdi_merge.h"
#include "vxgui/platform/gdi_shapes.h"
#include "vxgui/surface/DibInfo.h"
#include "vxgui/surface/KeyMerger.h"
#include "vxgui/surface/ScratchBitmap.h"
#include "vxgui/surface/ScratchContext.h"

namespace vxgui {

namespace {

constexpr ErrorReporter ReportError{"modDraw"};

/// The whole pixels of a block.
size_t PixelCount(const void* bits, int32_t bytes) {
    return bits && bytes > 0 ? static_cast<size_t>(bytes) / sizeof(ARGB) : 0;
}

/// The pixels that begin within a block.
size_t BegunPixelCount(const void* bits, int32_t bytes) {
    return bits && bytes > 0 ? (static_cast<size_t>(bytes) - 1) / sizeof(ARGB) + 1 : 0;
}

/// A rectangle of one context and the one of another that it comes from.
struct Blit {
    gdi::HDC target;
    int32_t x, y, w, h;
    gdi::HDC source;
    int32_t sx, sy, sw, sh;
};

/// A rectangle of the target.
struct Area {
    int32_t x, y, w, h;
};

/// What the target's context shows of the blit. The rest needs no working out: a stretched
/// picture may be far larger than what can be seen of it.
Area VisiblePart(const Blit& b) {
    gdi::RECT box{};
    gdi::GetClipBox(b.target, &box);
    const int32_t x = std::max(b.x, box.left), y = std::max(b.y, box.top);
    const int64_t right = std::min<int64_t>(int64_t{b.x} + b.w, box.right);
    const int64_t bottom = std::min<int64_t>(int64_t{b.y} + b.h, box.bottom);
    if (right <= x || bottom <= y) return {};
    return {x, y, static_cast<int32_t>(right - x), static_cast<int32_t>(bottom - y)};
}

/// Reads the source of the part into the bitmap that is selected in `scratch`. The stretch mode is
/// that of a fresh context: pixels are dropped or repeated.
void ReadSource(gdi::HDC scratch, const Blit& b, const Area& part) {
    const int32_t x = b.x - part.x, y = b.y - part.y;  // at or before the corner of the scratch
    if (b.w != b.sw || b.h != b.sh) {
        gdi::StretchBlt(scratch, x, y, b.w, b.h, b.source, b.sx, b.sy, b.sw, b.sh, gdi::SRCCOPY);
    } else {
        gdi::BitBlt(scratch, x, y, b.w, b.h, b.source, b.sx, b.sy, gdi::SRCCOPY);
    }
}

/// Reads source and target into scratch bitmaps, has `merger` work on their pixels, and writes
/// the target out again. Drawing calls may be batched, so each scratch is flushed before its memory
/// is touched.
void MergeThroughScratch(const Blit& b, gdi::WordMerger& merger) {
    const Area part = VisiblePart(b);
    if (part.w < 1) return;
    const gdi::BITMAPINFO info = DibInfo(part.w, part.h);
    const ScratchBitmap source(b.target, info);
    if (!source.handle()) return;
    gdi::GdiFlush();
    const ScratchContext scratch(b.target);
    if (!scratch) return;
    {
        const ScopedSelection selected(scratch.get(), source.handle());
        ReadSource(scratch.get(), b, part);
    }
    const ScratchBitmap target(b.target, info);
    if (!target.handle()) return;
    gdi::GdiFlush();
    const ScopedSelection selected(scratch.get(), target.handle());
    gdi::BitBlt(scratch.get(), 0, 0, part.w, part.h, b.target, part.x, part.y, gdi::SRCCOPY);
    if (!source.bits() || !target.bits()) return;
    merger.Merge(static_cast<const uint32_t*>(source.bits()), static_cast<uint32_t*>(target.bits()),
                 part.w * part.h);
    const auto width = static_cast<DWORD>(part.w);
    const auto height = static_cast<DWORD>(part.h);
    gdi::SetDIBitsToDevice(b.target, part.x, part.y, width, height, 0, 0, 0, height, target.bits(),
                           &info, gdi::DIB_RGB_COLORS);
}

/// In the target's own pixels where that gives the same, else by way of scratch bitmaps.
void Merge(const Blit& b, gdi::WordMerger& merger) {
    if (!gdi::MergeBlt(b.target, b.x, b.y, b.w, b.h, b.source, b.sx, b.sy, b.sw, b.sh, merger)) {
        MergeThroughScratch(b, merger);
    }
}

constexpr int32_t kBytesPerPixel = sizeof(ARGB);

class Blender final : public gdi::WordMerger {
public:
    Blender(uint8_t alpha, bool hasAlpha) : alpha_(alpha), hasAlpha_(hasAlpha) {}

    void Merge(const uint32_t* source, uint32_t* target, int32_t count) override {
        AlphaDibBits(source, target, count * kBytesPerPixel, alpha_, hasAlpha_);
    }

private:
    const uint8_t alpha_;
    const bool hasAlpha_;
};

}  // namespace

void AlphaDibBits(const void* src, void* dst, int32_t count, int32_t alpha, bool hasAlpha) {
    ReportError.Guard("Public Function AlphaDibBits", [&] {
        // Unlike premultiplying, on purpose: a pixel that the count cuts is blended whole.
        const size_t pixels = src ? BegunPixelCount(dst, count) : 0;
        Blend({static_cast<const ARGB*>(src), pixels}, {static_cast<ARGB*>(dst), pixels}, alpha,
              hasAlpha);
    });
}

void PreMultiplyBits(void* bits, int32_t count) {
    Premultiply({static_cast<ARGB*>(bits), PixelCount(bits, count)});
}

void Vx_AlphaBlend(gdi::HDC hdcDst, int32_t x, int32_t y, int32_t w, int32_t h, gdi::HDC hdcSrc,
                   int32_t sx, int32_t sy, int32_t sw, int32_t sh, uint8_t alpha, bool hasAlpha) {
    ReportError.Guard("Public Function Vx_AlphaBlend", [&] {
        Blender blender(alpha, hasAlpha);
        const Blit blit{hdcDst, x, y, w, h, hdcSrc, sx, sy, sw, sh};
        // An alpha of 0 changes nothing, and the target is written out all the same.
        alpha > 0 ? Merge(blit, blender) : MergeThroughScratch(blit, blender);
    });
}

void Vex_TransparentBlt(gdi::HDC hdcDst, int32_t x, int32_t y, int32_t w, int32_t h,
                        gdi::HDC hdcSrc, int32_t sx, int32_t sy, int32_t sw, int32_t sh,
                        int32_t key) {
    ReportError.Guard("Public Function Vex_TransparentBlt", [&] {
        KeyMerger merger(key);
        const Blit blit{hdcDst, x, y, w, h, hdcSrc, sx, sy, sw, sh};
        KeyMerger::IsBound() ? Merge(blit, merger) : MergeThroughScratch(blit, merger);
    });
}

}  // namespace vxgui
