#include "vxgui/platform/gdiplus/Bitmap.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "vxgui/platform/gdiplus/words/Premultiply.h"
#include "vxgui/platform/gdiplus/bitmap/CopyPixels.h"
#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"
#include "vxgui/platform/gdiplus/bitmap/PixelRow.h"

namespace vxgui::gdiplus {
namespace {

size_t Column(INT x) { return static_cast<size_t>(x); }

// The end of the run from `start` on whose pixels differ, or agree, as the first pair does.
size_t RunEnd(std::span<const ARGB> a, std::span<const ARGB> b, size_t start) {
    const bool same = a[start] == b[start];
    size_t end = start + 1;
    while (end < a.size() && (a[end] == b[end]) == same) ++end;
    return end;
}

}  // namespace

Ref<Bitmap> Bitmap::Create(INT width, INT height, PixelFormat format) {
    if (width <= 0 || height <= 0) return nullptr;
    return New<Bitmap>(PixelMemory::Zeroed(width, height, format));
}

Ref<Bitmap> Bitmap::CopyArea(const GpRect& area, PixelFormat format) const {
    Ref<Bitmap> copy = New<Bitmap>(PixelMemory::Zeroed(area.Width, area.Height, format));
    if (format == memory_.format) copy->palette_ = palette_;
    copy->dpiX = dpiX;
    copy->dpiY = dpiY;
    PixelCopier copier({memory_.format, &palette_}, {format, &copy->palette_});
    for (INT y = 0; y < area.Height; ++y) {
        copier.Copy(Row(area.Y + y), Column(area.X), copy->Row(y), 0, Column(area.Width));
    }
    return copy;
}

Ref<Bitmap> Bitmap::Copy() const {
    Ref<Bitmap> copy = CopyArea(Bounds(), memory_.format);
    copy->rawFormat = rawFormat;
    copy->fileFlags = fileFlags;
    copy->properties = properties;
    copy->file = file;
    copy->frameCount = frameCount;
    return copy;
}

bool Bitmap::Contains(const GpRect& area) const {
    return area.X >= 0 && area.Y >= 0 && area.Width > 0 && area.Height > 0 &&
           area.X <= memory_.width - area.Width && area.Y <= memory_.height - area.Height;
}

void Bitmap::ExchangePixels(Bitmap& other) {
    std::swap(memory_, other.memory_);
    std::swap(palette_, other.palette_);
}

void Bitmap::ReadStraight(INT x, INT y, std::span<ARGB> to) const {
    ReadPixels(memory_.format, Row(y), Column(x), to, palette_);
}

void Bitmap::ReadPremultiplied(INT x, INT y, std::span<ARGB> to) const {
    if (memory_.format == PixelFormat32bppPARGB) {
        std::memcpy(to.data(), Row(y) + 4 * Column(x), to.size_bytes());
        return;
    }
    ReadStraight(x, y, to);
    PremultiplyRow(to);
}

void Bitmap::WriteStraight(INT x, INT y, std::span<const ARGB> from) {
    if (!IsIndexed(memory_.format)) {
        return WritePixels(memory_.format, Row(y), Column(x), from, nullptr);
    }
    PaletteMatcher matcher(palette_.entries);
    WritePixels(memory_.format, Row(y), Column(x), from, &matcher);
}

void Bitmap::WritePremultiplied(INT x, INT y, std::span<const ARGB> from) {
    if (memory_.format == PixelFormat32bppPARGB) {
        std::memcpy(Row(y) + 4 * Column(x), from.data(), from.size_bytes());
        return;
    }
    std::array<ARGB, 256> held;
    for (; !from.empty(); x += static_cast<INT>(held.size())) {
        const auto next = from.first(std::min(held.size(), from.size()));
        const auto now = std::span(held).first(next.size());
        ReadPremultiplied(x, y, now);
        for (size_t start = 0; start < next.size();) {
            const size_t end = RunEnd(next, now, start);
            if (next[start] != now[start]) {
                const auto run = now.subspan(start, end - start);
                std::ranges::transform(next.subspan(start, end - start), run.begin(), Straight);
                WriteStraight(x + static_cast<INT>(start), y, run);
            }
            start = end;
        }
        from = from.subspan(next.size());
    }
}

}  // namespace vxgui::gdiplus
