#include <algorithm>

#include "vxgui/platform/gdiplus/bitmap/BitmapCall.h"
#include "vxgui/platform/gdiplus/bitmap/Histogram.h"
#include "vxgui/platform/gdiplus_images.h"

namespace vxgui::gdiplus {

extern "C" {

GpStatus GdipBitmapGetHistogramSize(GpBitmap*, HistogramFormat format, UINT* entries) {
    if (!entries || ChannelCount(format) == 0) return InvalidParameter;
    *entries = kHistogramEntries;
    return Ok;
}

GpStatus GdipBitmapGetHistogram(GpBitmap* bitmap, HistogramFormat format, UINT entries,
                                UINT* channel0, UINT* channel1, UINT* channel2, UINT* channel3) {
    return FlatOnPixels(bitmap, [&](Bitmap& found) {
        const HistogramChannels channels{channel0, channel1, channel2, channel3};
        const UINT count = ChannelCount(format);
        if (count == 0 || entries != kHistogramEntries ||
            std::any_of(channels.begin(), channels.begin() + count,
                        [](const UINT* channel) { return !channel; })) {
            return InvalidParameter;
        }
        CountPixels(found, format, channels);
        return Ok;
    });
}

}  // extern "C"

}  // namespace vxgui::gdiplus
