#include "vxgui/theme/compiled/PictureBlock.h"

#include <cstdlib>

#include "vxgui/base/LittleEndian.h"

namespace vxgui::compiled {
namespace {

// Places in a serialized surface; docs/formats.md lists them.
constexpr size_t kWidthAt = 24, kHeightAt = 28, kDepthAt = 34, kPixelsAt = 60;

int64_t Integer(const ByteArray& block, size_t at) {
    return static_cast<int32_t>(LoadLittle<uint32_t>(block.data() + at));
}

}  // namespace

bool IsWholePicture(const ByteArray& block) {
    if (block.size() <= kPixelsAt) return false;
    const int64_t width = Integer(block, kWidthAt);
    const int64_t height = std::llabs(Integer(block, kHeightAt));
    const int64_t depth = LoadLittle<uint16_t>(block.data() + kDepthAt);
    const auto pixels = static_cast<int64_t>(block.size() - kPixelsAt);
    if (width <= 0 || height <= 0 || depth <= 0 || depth > 32) return false;
    return (width * depth + 31) / 32 * 4 == pixels / height && pixels % height == 0;
}

}  // namespace vxgui::compiled
