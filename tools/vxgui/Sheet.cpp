#include "tools/vxgui/Sheet.h"

#include <png.h>

#include <algorithm>

#include "tools/vxgui/ToolError.h"
#include "vxgui/platform/core7.h"
#include "vxgui/platform/limits.h"

namespace vxgui::tool {
namespace {

size_t CheckedArea(int32_t width, int32_t height) {
    const int64_t area = int64_t{width} * height;
    const PictureLimits& limits = ApartmentLimits().picture;
    if (width < 1 || height < 1 || width > limits.side || height > limits.side ||
        area > limits.area) {
        throw ToolError("error: a picture of " + std::to_string(width) + "x" +
                        std::to_string(height) + " can't be made; sides from 1 to " +
                        std::to_string(limits.side) + " and an area of up to " +
                        std::to_string(limits.area >> 20) + " megapixels were expected");
    }
    return static_cast<size_t>(area);
}

png_image PngHeader(int32_t width, int32_t height) {
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width);
    image.height = static_cast<png_uint_32>(height);
    image.format = PNG_FORMAT_BGRA;
    return image;
}

}  // namespace

Sheet::Sheet(int32_t width, int32_t height)
    : width_(width), height_(height), pixels_(CheckedArea(width, height)) {
    dc_ = gdi::CreateHostDC({pixels_.data(), width, height, std::ptrdiff_t{width} * 4, false});
}

Sheet::~Sheet() { gdi::DeleteDC(dc_); }

void Sheet::Fill(uint32_t pixel) { std::fill(pixels_.begin(), pixels_.end(), pixel); }

void Sheet::FillChecks(int32_t x, int32_t y, int32_t width, int32_t height) {
    for (int32_t row = 0; row < height; ++row) {
        for (int32_t column = 0; column < width; ++column) {
            const bool dark = (column / 8 + row / 8) % 2 != 0;
            At(x + column, y + row) = dark ? 0xFFC9CED4 : 0xFFDDE1E6;
        }
    }
}

void Sheet::MakeOpaque() {
    for (uint32_t& pixel : pixels_) pixel |= 0xFF000000;
}

ByteArray Sheet::Png() const {
    png_image image = PngHeader(width_, height_);
    png_alloc_size_t size = PNG_IMAGE_PNG_SIZE_MAX(image);
    ByteArray bytes(size);
    if (!png_image_write_to_memory(&image, bytes.data(), &size, 0, pixels_.data(), 0, nullptr))
        throw ToolError(std::string("error: no PNG can be made: ") + image.message);
    bytes.resize(size);
    return bytes;
}

void Sheet::WritePng(const std::string& path) const {
    const ByteArray file = Png();
    if (!core7::WriteWholeFile(path, file.data(), file.size()))
        FailBySystem(path, "can't be written");
}

}  // namespace vxgui::tool
