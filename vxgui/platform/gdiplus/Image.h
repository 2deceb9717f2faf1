#pragma once

#include "vxgui/platform/gdiplus/FlatObject.h"
#include "vxgui/platform/gdiplus_formats.h"

namespace vxgui::gdiplus {

/// What every image has; the base of bitmaps.
class Image : public FlatObject {
public:
    virtual UINT Width() const = 0;
    virtual UINT Height() const = 0;

    REAL dpiX = 96, dpiY = 96;  ///< a new image has the screen's
    GUID rawFormat = ImageFormatMemoryBMP;
    UINT fileFlags = 0;  ///< of `ImageFlags`, by which an image of a file tells of it
};

}  // namespace vxgui::gdiplus
