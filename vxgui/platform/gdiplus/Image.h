#pragma once

#include <memory>

#include "vxgui/base/Variant.h"
#include "vxgui/platform/codecs/ImageProperties.h"
#include "vxgui/platform/gdiplus/FlatObject.h"
#include "vxgui/platform/gdiplus_formats.h"

namespace vxgui::gdiplus {

class PageSink;

/// What every image has; the base of bitmaps.
class Image : public FlatObject {
public:
    virtual UINT Width() const = 0;
    virtual UINT Height() const = 0;

    REAL dpiX = 96, dpiY = 96;  ///< a new image has the screen's
    GUID rawFormat = ImageFormatMemoryBMP;
    UINT fileFlags = 0;  ///< of `ImageFlags`, by which an image of a file tells of it
    codecs::ImageProperties properties;

    /// The file of an image of several frames, which are decoded when they are selected.
    std::shared_ptr<const ByteArray> file;
    UINT frameCount = 1;

    /// Where pages are still added to; null when no such file is open.
    std::shared_ptr<PageSink> pages;
};

}  // namespace vxgui::gdiplus
