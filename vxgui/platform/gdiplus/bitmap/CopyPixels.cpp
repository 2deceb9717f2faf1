#include "vxgui/platform/gdiplus/bitmap/CopyPixels.h"

#include <algorithm>
#include <cstring>

#include "vxgui/platform/gdiplus/bitmap/DeepRow.h"
#include "vxgui/platform/gdiplus/bitmap/PixelFormats.h"

namespace vxgui::gdiplus {
namespace {

// Hands out (done, run) for pieces of `count` that a small buffer holds.
template <class T, class Step>
void InPieces(size_t count, Step step) {
    std::array<T, 256> buffer;
    for (size_t done = 0; done < count; done += buffer.size()) {
        step(done, std::span(buffer).first(std::min(buffer.size(), count - done)));
    }
}

}  // namespace

PixelCopier::PixelCopier(PixelCoding from, PixelCoding to)
    : from_(from), to_(to), sameIndexes_(from.format == to.format) {
    if (!IsIndexed(to.format)) return;
    sameIndexes_ = IsIndexed(from.format) && from.palette->entries == to.palette->entries &&
                   BitsPerPixel(from.format) <= BitsPerPixel(to.format);
    if (sameIndexes_) return;
    const std::span<const ARGB> entries = to.palette->entries;
    const size_t reachable = size_t{1} << BitsPerPixel(to.format);
    matcher_.emplace(entries.first(std::min(entries.size(), reachable)));
}

void PixelCopier::CopyByColor(const uint8_t* from, size_t fromX, uint8_t* to, size_t toX,
                              size_t count) {
    InPieces<ARGB>(count, [&](size_t done, std::span<ARGB> run) {
        ReadPixels(from_.format, from, fromX + done, run, *from_.palette);
        WritePixels(to_.format, to, toX + done, run, matcher_ ? &*matcher_ : nullptr);
    });
}

void PixelCopier::Copy(const uint8_t* from, size_t fromX, uint8_t* to, size_t toX, size_t count) {
    if (sameIndexes_ && !IsIndexed(to_.format)) {
        const auto bytes = static_cast<size_t>(BitsPerPixel(to_.format)) / 8;
        std::memcpy(to + toX * bytes, from + fromX * bytes, count * bytes);
    } else if (sameIndexes_) {
        InPieces<uint8_t>(count, [&](size_t done, std::span<uint8_t> run) {
            ReadIndexes(BitsPerPixel(from_.format), from, fromX + done, run);
            WriteIndexes(BitsPerPixel(to_.format), to, toX + done, run);
        });
    } else if (IsDeep(from_.format) && IsDeep(to_.format)) {
        CopyDeep(from_.format, from, fromX, to_.format, to, toX, count);
    } else {
        CopyByColor(from, fromX, to, toX, count);
    }
}

}  // namespace vxgui::gdiplus
