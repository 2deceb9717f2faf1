#include <algorithm>
#include <bitset>
#include <optional>

#include "vxgui/platform/gdi/BlitGeometry.h"
#include "vxgui/platform/gdi/BlitReader.h"
#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/PixelRows.h"
#include "vxgui/platform/gdi/ScratchBlock.h"
#include "vxgui/platform/gdi_mosaic.h"

namespace vxgui::gdi {
namespace {

bool Inside(std::span<const int32_t> table, int32_t size) {
    uint32_t most = 0;  // what is below 0 is above all as an unsigned number
    for (const int32_t entry : table) most = std::max(most, static_cast<uint32_t>(entry));
    return most < static_cast<uint32_t>(size);
}

/// A part of a mosaic over its source.
class MosaicView {
public:
    MosaicView(const PixelTarget& source, MosaicPart bands) : source_(source), bands_(bands) {}

    /// All entries lie inside the source, and all bands have the height of the first.
    bool Whole() const {
        return Width() <= INT32_MAX && Height() <= INT32_MAX &&
               std::ranges::all_of(bands_, [this](const MosaicBand& band) {
                   return band.rows.size() == Height() && Inside(band.columns, source_.width) &&
                          Inside(band.rows, source_.height);
               });
    }
    size_t Width() const {
        size_t width = 0;
        for (const MosaicBand& band : bands_) width += band.columns.size();
        return width;
    }
    size_t Height() const { return bands_.empty() ? 0 : bands_[0].rows.size(); }
    MosaicPart Bands() const { return bands_; }

    bool SameRow(size_t y, size_t other) const {
        return std::ranges::all_of(
            bands_, [=](const MosaicBand& band) { return band.rows[y] == band.rows[other]; });
    }
    void Lay(size_t y, uint32_t* words) const {
        for (const MosaicBand& band : bands_) {
            const auto width = static_cast<int32_t>(band.columns.size());
            LoadColumns(source_, band.columns.data(), band.rows[y], width, words);
            words += width;
        }
    }

private:
    const PixelTarget source_;
    const MosaicPart bands_;
};

/// The rows of a part, each laid out once. Where it has one band, and few enough source rows, all
/// that were laid out are kept: what is tiled or stretched downwards shows them again and again.
class LaidRows {
public:
    explicit LaidRows(const MosaicView& mosaic) : mosaic_(mosaic), width_(mosaic.Width()) {
        if (mosaic.Bands().size() != 1 || mosaic.Height() == 0) return;
        const auto [least, most] = std::ranges::minmax(mosaic.Bands()[0].rows);
        const size_t rows = static_cast<size_t>(most - least) + 1;
        if (rows > kMostRows || rows * width_ > kMostWords || rows >= mosaic.Height()) return;
        first_ = least;
        kept_ = rows;
    }

    /// How many words of memory it needs.
    size_t Words() const { return std::max<size_t>(kept_, 1) * width_; }
    void Use(uint32_t* words) { words_ = words; }

    /// The words of a row, until the next one is asked for.
    const uint32_t* At(size_t y) {
        if (kept_ == 0) {
            if (last_ == kNone || !mosaic_.SameRow(y, last_)) mosaic_.Lay(y, words_);
            last_ = y;
            return words_;
        }
        const auto row = static_cast<size_t>(mosaic_.Bands()[0].rows[y] - first_);
        uint32_t* const words = words_ + row * width_;
        if (!laid_[row]) mosaic_.Lay(y, words);
        laid_[row] = true;
        return words;
    }

private:
    static constexpr size_t kMostRows = 256, kMostWords = 64 << 10, kNone = SIZE_MAX;

    const MosaicView& mosaic_;
    const size_t width_;
    uint32_t* words_ = nullptr;
    size_t last_ = kNone;
    int32_t first_ = 0;
    size_t kept_ = 0;
    std::bitset<kMostRows> laid_;
};

/// The memory that the largest of the parts needs; none when one isn't whole.
std::optional<size_t> WordsFor(const PixelTarget& source, std::span<const MosaicPart> parts) {
    size_t most = 1;
    for (const MosaicPart& part : parts) {
        const MosaicView view(source, part);
        if (!view.Whole()) return {};
        most = std::max(most, LaidRows(view).Words());
    }
    return most;
}

/// Merges what may be drawn on of a part whose first pixel goes to (x, y).
void MergePart(const DeviceContext& dc, int32_t x, int32_t y, const MosaicView& view,
               uint32_t* words, WordMerger& merger) {
    LaidRows rows(view);
    rows.Use(words);
    const PixelTarget target = dc.Target();
    const RECT area =
        RectFromExtents(x, y, static_cast<int>(view.Width()), static_cast<int>(view.Height()));
    ForEachClipRect(dc, area, [&](const RECT& part) {
        for (int32_t at = part.top; at < part.bottom; ++at) {
            const uint32_t* const row = rows.At(static_cast<size_t>(int64_t{at} - y));
            merger.Merge(row + (int64_t{part.left} - x), target.Row32(at) + part.left,
                         part.right - part.left);
        }
    });
}

}  // namespace

void TabulateStretch(int32_t sourceStart, int32_t sourceSize, std::span<int32_t> sources) {
    const auto size = static_cast<int64_t>(sources.size());
    if (size != sourceSize)
        return BlitAxis(0, size, sourceStart, sourceSize).Tabulate(sources.data());
    for (int32_t i = 0; i < sourceSize; ++i)
        sources[static_cast<size_t>(i)] = static_cast<int32_t>(int64_t{sourceStart} + i);
}

bool MergeMosaic(HDC handle, int x, int y, const Mosaic& mosaic, WordMerger& merger) {
    const GdiRef<DeviceContext> dc = FindContext(handle);
    const GdiRef<DeviceContext> from = FindContext(mosaic.source);
    if (!dc || !from) return false;
    const PixelTarget source = from->Target(), target = dc->Target();
    if (source.depth != 32 || target.depth != 32 || ShareMemory(source, target)) return false;
    const std::optional<size_t> count = WordsFor(source, mosaic.parts);
    ScratchBlock block;
    auto* const words = count ? block.Take<uint32_t>(*count) : nullptr;
    if (!words) return false;
    int64_t top = y;
    for (const MosaicPart& part : mosaic.parts) {
        const MosaicView view(source, part);
        if (top <= INT32_MAX) MergePart(*dc, x, static_cast<int32_t>(top), view, words, merger);
        top += static_cast<int64_t>(view.Height());
    }
    return true;
}

}  // namespace vxgui::gdi
