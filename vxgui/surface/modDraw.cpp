#include "vxgui/surface/modDraw.h"

#include <algorithm>
#include <span>

#include "vxgui/frame/Report.h"
#include "vxgui/frame/modVxCoreHlp.h"
#include "vxgui/pixels/Blend.h"
#include "vxgui/pixels/Premultiply.h"
#include "vxgui/platform/gdi_shapes.h"
#include "vxgui/surface/DibInfo.h"
#include "vxgui/surface/ScratchBitmap.h"
#include "vxgui/surface/ScratchContext.h"

namespace vxgui {

namespace {

constexpr ErrorReporter ReportError{"modDraw"};

/// The whole pixels of a block; a rest of one to three bytes is nobody's pixel.
size_t PixelCount(const void* bits, int32_t bytes) {
    return bits && bytes > 0 ? static_cast<size_t>(bytes) / sizeof(ARGB) : 0;
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

/// Reads source and target into scratch bitmaps, has `merge(source, target, bytes)` work on
/// their pixels, and writes the target out again. Drawing calls may be batched, so each scratch
/// is flushed before its memory is touched.
template <class Merge>
void MergeThroughScratch(const Blit& b, Merge merge) {
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
    merge(source.bits(), target.bits(), static_cast<int32_t>(info.bmiHeader.biSizeImage));
    const auto width = static_cast<DWORD>(part.w);
    const auto height = static_cast<DWORD>(part.h);
    gdi::SetDIBitsToDevice(b.target, part.x, part.y, width, height, 0, 0, 0, height, target.bits(),
                           &info, gdi::DIB_RGB_COLORS);
}

}  // namespace

void AlphaDibBits(const void* src, void* dst, int32_t count, int32_t alpha, bool hasAlpha) {
    ReportError.Guard("Public Function AlphaDibBits", [&] {
        const size_t pixels = src ? PixelCount(dst, count) : 0;
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
        MergeThroughScratch({hdcDst, x, y, w, h, hdcSrc, sx, sy, sw, sh},
                            [=](const void* source, void* target, int32_t count) {
                                AlphaDibBits(source, target, count, alpha, hasAlpha);
                            });
    });
}

void Vex_TransparentBlt(gdi::HDC hdcDst, int32_t x, int32_t y, int32_t w, int32_t h,
                        gdi::HDC hdcSrc, int32_t sx, int32_t sy, int32_t sw, int32_t sh,
                        int32_t key) {
    ReportError.Guard("Public Function Vex_TransparentBlt", [&] {
        MergeThroughScratch({hdcDst, x, y, w, h, hdcSrc, sx, sy, sw, sh},
                            [=](const void* source, void* target, int32_t count) {
                                HlpMergeTransparent(source, target, count, key);
                            });
    });
}

}  // namespace vxgui
