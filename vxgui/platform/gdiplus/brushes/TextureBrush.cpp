#include "vxgui/platform/gdiplus/brushes/TextureBrush.h"

#include <algorithm>
#include <cmath>

#include "vxgui/platform/gdiplus/words/Premultiply.h"
#include "vxgui/platform/gdiplus/brushes/Patterns.h"

namespace vxgui::gdiplus {
namespace {

bool IsWhole(REAL value) { return value == std::nearbyint(value); }

// Each pixel of the texture is one of the device: nothing lies between two of them.
bool KeepsPixels(const Affine& a) {
    return std::abs(a.m11) == 1 && std::abs(a.m22) == 1 && a.m12 == 0 && a.m21 == 0 &&
           IsWhole(a.dx) && IsWhole(a.dy);
}

}  // namespace

TextureBrush::TextureBrush(const Bitmap& bitmap, const GpRect& part,
                           const ColorAdjustment* adjustment, WrapMode wrap)
    : WrappedBrush(wrap),
      width_(part.Width),
      height_(part.Height),
      pixels_(static_cast<size_t>(width_) * static_cast<size_t>(height_)) {
    const auto width = static_cast<size_t>(width_);
    for (INT y = 0; y < height_; ++y) {
        bitmap.ReadStraight(part.X, part.Y + y, {&pixels_[static_cast<size_t>(y) * width], width});
    }
    if (adjustment) Adjust(*adjustment, pixels_);
    BuildCell();
}

void TextureBrush::Wrap(WrapMode wrap) {
    WrappedBrush::Wrap(wrap);
    BuildCell();
}

void TextureBrush::BuildCell() {
    const auto width = static_cast<size_t>(width_);
    cell_.clear();
    const auto addRow = [&](size_t y) {
        const ARGB* const row = &pixels_[y * width];
        for (size_t x = 0; x < width; ++x) cell_.push_back(Premultiplied(row[x]));
        for (size_t x = FlipsX(Wrap()) ? width : 0; x > 0; --x) {
            cell_.push_back(Premultiplied(row[x - 1]));
        }
    };
    const auto height = static_cast<size_t>(height_);
    cell_.reserve(pixels_.size() * (FlipsX(Wrap()) ? 2 : 1) * (FlipsY(Wrap()) ? 2 : 1));
    for (size_t y = 0; y < height; ++y) addRow(y);
    for (size_t y = FlipsY(Wrap()) ? height : 0; y > 0; --y) addRow(y - 1);
}

Pattern TextureBrush::MakePattern(const PatternPlace& place) const {
    const std::optional<Affine> toBrush = Inverse(transform);
    if (!toBrush) return ClearPattern();
    const INT width = width_ * (FlipsX(Wrap()) ? 2 : 1);
    // cairo doesn't write to what a pattern reads.
    const Surface surface = SurfaceOver(
        WordRows::Packed(const_cast<ARGB*>(cell_.data()), width,
                         static_cast<INT>(cell_.size() / static_cast<size_t>(width))));
    const bool exact = KeepsPixels(transform * place.worldToDevice);
    return SurfacePattern(surface, *toBrush,
                          Wrap() == WrapModeClamp ? CAIRO_EXTEND_NONE : CAIRO_EXTEND_REPEAT,
                          exact ? CAIRO_FILTER_NEAREST : CAIRO_FILTER_BILINEAR);
}

Ref<Bitmap> TextureBrush::Image() const {
    Ref<Bitmap> image = Bitmap::Create(width_, height_, PixelFormat32bppARGB);
    const auto width = static_cast<size_t>(width_);
    for (INT y = 0; y < height_; ++y) {
        image->WriteStraight(0, y, {&pixels_[static_cast<size_t>(y) * width], width});
    }
    return image;
}

}  // namespace vxgui::gdiplus
