#include "vxgui/platform/gdi/BlitReader.h"

#include <algorithm>
#include <cstring>
#include <functional>
#include <numeric>

#include "vxgui/platform/gdi/Dib.h"
#include "vxgui/platform/gdi/PixelRows.h"

namespace vxgui::gdi {
namespace {

struct ByteSpan {
    const uint8_t* first;
    const uint8_t* end;
};

ByteSpan BytesOf(const PixelTarget& view) {
    const uint8_t* top = view.Row(0);
    const uint8_t* bottom = view.Row(view.height - 1);
    const std::less<const uint8_t*> before;
    return {before(top, bottom) ? top : bottom,
            (before(top, bottom) ? bottom : top) + RowBytes(view.width, view.depth, 1)};
}

}  // namespace

bool ShareMemory(const PixelTarget& a, const PixelTarget& b) {
    const ByteSpan x = BytesOf(a);
    const ByteSpan y = BytesOf(b);
    const std::less<const uint8_t*> before;
    return before(x.first, y.end) && before(y.first, x.end);
}

bool SamePixels(const PixelTarget& a, const PixelTarget& b) {
    return a.top == b.top && a.stride == b.stride && a.depth == b.depth;
}

BlitReader::BlitReader(const PixelTarget& source, const BlitGeometry& geometry)
    : source_(source), geometry_(geometry) {}

bool BlitReader::Prepare(const PixelTarget& target) {
    const bool apart = !ShareMemory(source_, target) ||
                       (SamePixels(source_, target) &&
                        IsEmpty(Intersection(geometry_.SourceArea(), geometry_.Area())));
    return (apart || Detach()) && (geometry_.Plain() || Tabulate());
}

// Copies the source pixels that are shown. Columns start at a whole byte.
bool BlitReader::Detach() {
    RECT area = geometry_.SourceArea();
    area.left &= ~7;
    const int64_t stride = RowBytes(area.right - area.left, source_.depth, 4);
    const int32_t height = area.bottom - area.top;
    auto* copy = copy_.Take<uint8_t>(static_cast<size_t>(stride * height));
    if (!copy) return false;
    const int64_t skipped = RowBytes(area.left, source_.depth, 1);
    const int64_t bytes = RowBytes(area.right - area.left, source_.depth, 1);
    for (int32_t y = 0; y < height; ++y) {
        std::memcpy(copy + y * stride, source_.Row(area.top + y) + skipped,
                    static_cast<size_t>(bytes));
    }
    source_ = {copy, stride, area.right - area.left, height, source_.depth, source_.colors};
    geometry_.across.MoveSource(-area.left);
    geometry_.down.MoveSource(-area.top);
    return true;
}

bool BlitReader::Tabulate() {
    const BlitAxis &across = geometry_.across, &down = geometry_.down;
    const auto width = static_cast<size_t>(across.High() - across.Low());
    const auto height = static_cast<size_t>(down.High() - down.Low());
    auto* table = table_.Take<int32_t>(width + height);
    if (!table) return false;
    if (!across.Plain()) {
        across.Tabulate(table);
        columns_ = table;
    }
    if (!down.Plain()) {
        down.Tabulate(table + width);
        rows_ = table + width;
    }
    return true;
}

const uint8_t* BlitReader::Address(int32_t x, int32_t y) const {
    return source_.Row(Row(y)) + geometry_.across.Source(x) * (source_.depth / 8);
}

void BlitReader::Read(int32_t x, int32_t y, int32_t count, uint32_t* words) const {
    const int32_t row = Row(y);
    if (columns_) {
        LoadColumns(source_, columns_ + (x - geometry_.across.Low()), row, count, words);
    } else {
        LoadRow(source_, static_cast<int32_t>(geometry_.across.Source(x)), row, count, words);
    }
}

}  // namespace vxgui::gdi
