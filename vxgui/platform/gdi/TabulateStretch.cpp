#include "vxgui/pixels/Multiversion.h"
#include "vxgui/platform/gdi/BlitAxis.h"
#include "vxgui/platform/gdi_mosaic.h"

namespace vxgui::gdi {
namespace {

/// Up to here the dividends have 23 bits. A quotient that isn't whole is then further from the next
/// whole number than single precision rounds.
constexpr int32_t kMostInSingles = 2048;

/// `BlitAxis::Source` without its division of whole numbers.
VXGUI_MULTIVERSION(void, StretchLoop,
                   (int32_t * sources, int32_t size, int32_t start, int32_t sourceSize)) {
    const auto divisor = static_cast<float>(2 * size);
    for (int32_t i = 0; i < size; ++i) {
        const auto dividend = static_cast<float>((2 * i + 1) * sourceSize - 1);
        sources[i] = start + static_cast<int32_t>(dividend / divisor);
    }
}

}  // namespace

void TabulateStretch(int32_t sourceStart, int32_t sourceSize, std::span<int32_t> sources) {
    const auto size = static_cast<int64_t>(sources.size());
    if (size == sourceSize) {
        for (int32_t i = 0; i < sourceSize; ++i) sources[static_cast<size_t>(i)] = sourceStart + i;
    } else if (size <= kMostInSingles && sourceSize <= kMostInSingles) {
        StretchLoop(sources.data(), static_cast<int32_t>(size), sourceStart, sourceSize);
    } else {
        BlitAxis(0, size, sourceStart, sourceSize).Tabulate(sources.data());
    }
}

}  // namespace vxgui::gdi
