#include "vxgui/platform/gdiplus/graphics/DcTarget.h"

#include "vxgui/platform/gdi/PixelConverter.h"
#include "vxgui/platform/gdi/PixelRows.h"
#include "vxgui/platform/gdi_surfaces.h"
#include "vxgui/platform/gdiplus/words/Premultiply.h"

namespace vxgui::gdiplus {
namespace {

constexpr ARGB kOpaque = 0xFF000000;

}  // namespace

REAL DcTarget::DpiX() const { return static_cast<REAL>(gdi::ScreenDpi()); }

const gdi::PixelRegion* DcTarget::Clip() const {
    return context_->state.clip ? &*context_->state.clip : nullptr;
}

WordRows DcTarget::Words() const {
    const gdi::PixelTarget target = context_->Target();
    if (target.depth != 32) return {};
    return {target.top, target.stride, target.width, target.height};
}

// The surface is kept from one drawing to the next, while the bitmap stays.
cairo_surface_t* DcTarget::Cover(const WordRows& words) {
    if (!surface_ || words != covered_) {
        surface_ = SurfaceOver(words);
        covered_ = words;
    }
    if (surface_) cairo_surface_mark_dirty(surface_.get());  // others draw on the pixels, too
    return surface_.get();
}

cairo_surface_t* DcTarget::Begin(const GpRect& area) {
    if (const WordRows words = Words()) return Cover(words);
    const gdi::PixelTarget target = context_->Target();
    return scratch_.Open(area, [&](INT x, INT y, std::span<ARGB> pixels) {
        gdi::LoadRow(target, x, y, static_cast<int32_t>(pixels.size()), pixels.data());
        for (ARGB& pixel : pixels) pixel = gdi::ColorOf(target, pixel, {}) | kOpaque;
    });
}

void DcTarget::StoreColors(const gdi::PixelTarget& target, INT x, INT y,
                           std::span<const ARGB> colors) {
    gdi::ColorMatcher matcher(target);
    std::vector<uint32_t> words;
    words.reserve(colors.size());
    for (const ARGB color : colors) words.push_back(matcher.Word(color & ~kOpaque));
    gdi::StoreRow(target, x, y, static_cast<int32_t>(words.size()), words.data());
}

void DcTarget::End(const GpRect&) {
    const gdi::PixelTarget target = context_->Target();
    if (target.depth == 32) {
        cairo_surface_flush(surface_.get());
    } else {
        scratch_.Close(
            [&](INT x, INT y, std::span<const ARGB> pixels) { StoreColors(target, x, y, pixels); });
    }
}

void DcTarget::Store(const GpRect& area, ARGB color) {
    const gdi::PixelTarget target = context_->Target();
    const ARGB pixel = Premultiplied(color);
    gdi::ColorMatcher matcher(target);
    const std::vector<uint32_t> words(static_cast<size_t>(area.Width),
                                      target.depth == 32 ? pixel : matcher.Word(pixel & ~kOpaque));
    for (INT y = area.Y; y < area.Y + area.Height; ++y) {
        gdi::StoreRow(target, area.X, y, area.Width, words.data());
    }
}

}  // namespace vxgui::gdiplus
