#pragma once

#include <span>

#include "vxgui/base/Variant.h"

namespace vxgui::gdiplus {

/// A device-independent bitmap in memory, as resources hold it, as the file that it would be: with
/// a header in front that leaves open where the pixels begin.
inline ByteArray FileOfDib(std::span<const uint8_t> dib) {
    ByteArray file(14);
    file[0] = 'B';
    file[1] = 'M';
    file.insert(file.end(), dib.begin(), dib.end());
    return file;
}

}  // namespace vxgui::gdiplus
