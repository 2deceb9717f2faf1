#pragma once

#include <functional>

#include "vxgui/platform/codecs/ImageProperties.h"

namespace vxgui::codecs {

/// A picture that is to be written. `colors` fills a row of 32-bit pixels, blue lowest, straight;
/// `indexes` the row of an indexed form, a byte a pixel.
struct PictureToWrite {
    int32_t width = 0;
    int32_t height = 0;
    PixelForm form = PixelForm::Bgra32;
    int indexBits = 0;              ///< of an indexed form: 1, 4 or 8
    std::vector<uint32_t> palette;  ///< as many colours as have an index, or fewer
    double dpiX = 96, dpiY = 96;
    ImageProperties properties;
    std::function<void(int32_t y, uint32_t* pixels)> colors;
    std::function<void(int32_t y, uint8_t* indexes)> indexes;

    size_t Width() const { return static_cast<size_t>(width); }
    bool IsIndexed() const { return form == PixelForm::Indexed; }
    bool HasAlpha() const { return form == PixelForm::Bgra32; }
};

using Written = std::vector<uint8_t>;

}  // namespace vxgui::codecs
