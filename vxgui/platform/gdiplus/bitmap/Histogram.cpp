#include "vxgui/platform/gdiplus/bitmap/Histogram.h"

#include <algorithm>
#include <vector>

#include "vxgui/platform/gdiplus/bitmap/Luminance.h"

namespace vxgui::gdiplus {
namespace {

constexpr int kBlue = 0, kGreen = 8, kRed = 16, kAlpha = 24;

struct Counted {
    UINT channels;
    std::array<int, 4> shifts;
};
constexpr Counted kFormats[] = {
    {4, {kAlpha, kRed, kGreen, kBlue}},  // ARGB
    {4, {kAlpha, kRed, kGreen, kBlue}},  // PARGB
    {3, {kRed, kGreen, kBlue, 0}},       // RGB
    {1, {kBlue, 0, 0, 0}},               // gray, which stands in all channels
    {1, {kBlue, 0, 0, 0}},
    {1, {kGreen, 0, 0, 0}},
    {1, {kRed, 0, 0, 0}},
    {1, {kAlpha, 0, 0, 0}},
};

void ReadRow(const Bitmap& bitmap, INT y, HistogramFormat format, std::span<ARGB> row) {
    if (format == HistogramFormatPARGB) return bitmap.ReadPremultiplied(0, y, row);
    bitmap.ReadStraight(0, y, row);
    if (format == HistogramFormatGray) std::ranges::transform(row, row.begin(), Luminance);
}

}  // namespace

UINT ChannelCount(HistogramFormat format) {
    const auto index = static_cast<size_t>(format);
    return index < std::size(kFormats) ? kFormats[index].channels : 0;
}

void CountPixels(const Bitmap& bitmap, HistogramFormat format, const HistogramChannels& channels) {
    const Counted& counted = kFormats[format];
    for (UINT i = 0; i < counted.channels; ++i) std::fill_n(channels[i], kHistogramEntries, 0);
    std::vector<ARGB> row(bitmap.Width());
    for (UINT y = 0; y < bitmap.Height(); ++y) {
        ReadRow(bitmap, static_cast<INT>(y), format, row);
        for (UINT i = 0; i < counted.channels; ++i) {
            for (const ARGB pixel : row) ++channels[i][pixel >> counted.shifts[i] & 255];
        }
    }
}

}  // namespace vxgui::gdiplus
