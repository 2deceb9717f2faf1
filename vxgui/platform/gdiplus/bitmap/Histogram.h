#pragma once

#include <array>

#include "vxgui/platform/gdiplus/Bitmap.h"

namespace vxgui::gdiplus {

constexpr UINT kHistogramEntries = 256;
using HistogramChannels = std::array<UINT*, 4>;

/// How many channels a format counts; 0 for what is none.
UINT ChannelCount(HistogramFormat format);

/// Counts the pixels by value into `kHistogramEntries` numbers for each channel of the format, in
/// the order of its name.
void CountPixels(const Bitmap& bitmap, HistogramFormat format, const HistogramChannels& channels);

}  // namespace vxgui::gdiplus
