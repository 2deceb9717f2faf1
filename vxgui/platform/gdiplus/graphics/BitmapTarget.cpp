#include "vxgui/platform/gdiplus/graphics/BitmapTarget.h"

#include "vxgui/platform/gdiplus/graphics/BitmapWords.h"

namespace vxgui::gdiplus {

WordRows BitmapTarget::Words() const { return WordsOf(*bitmap_); }

// Memory and its form may change between two drawings, even at the same place.
cairo_surface_t* BitmapTarget::Cover() {
    const WordRows words = Words();
    if (!words) return nullptr;
    if (!surface_ || covered_ != words) {
        surface_ = SurfaceOver(words);
        covered_ = words;
    }
    if (surface_) cairo_surface_mark_dirty(surface_.get());
    return surface_.get();
}

cairo_surface_t* BitmapTarget::Begin(const GpRect& area) {
    cairo_surface_t* const surface = Cover();
    direct_ = surface != nullptr;
    if (direct_) return surface;
    return scratch_.Open(area, [&](INT x, INT y, std::span<ARGB> pixels) {
        bitmap_->ReadPremultiplied(x, y, pixels);
    });
}

void BitmapTarget::End(const GpRect&) {
    if (direct_) {
        cairo_surface_flush(surface_.get());
    } else {
        scratch_.Close([&](INT x, INT y, std::span<const ARGB> pixels) {
            bitmap_->WritePremultiplied(x, y, pixels);
        });
    }
}

void BitmapTarget::Store(const GpRect& area, ARGB color) {
    const std::vector<ARGB> row(static_cast<size_t>(area.Width), color);
    for (INT y = area.Y; y < area.Y + area.Height; ++y) bitmap_->WriteStraight(area.X, y, row);
}

gdi::HDC BitmapTarget::LendDc() {
    lent_.emplace(Width(), Height());
    for (INT y = 0; y < Height() && lent_->Dc(); ++y)
        bitmap_->ReadPremultiplied(0, y, lent_->Row(y));
    lent_->Mark();
    return lent_->Dc();
}

void BitmapTarget::TakeBack(gdi::HDC) {
    lent_->ForEachChange([&](INT x, INT y, ARGB pixel) {
        bitmap_->WritePremultiplied(x, y, {&pixel, 1});
    });
    lent_.reset();
}

}  // namespace vxgui::gdiplus
