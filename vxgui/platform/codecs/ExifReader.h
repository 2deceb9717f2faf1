#pragma once

#include "vxgui/platform/codecs/ImageProperties.h"

namespace vxgui::codecs {

/// The tags of a page of a TIFF, those of its EXIF and GPS directories among them (TIFF 6.0,
/// EXIF 2.3). Values of types that have no published number are undefined bytes.
ImageProperties ReadTiffProperties(Bytes tiff, int page);

/// The same for the TIFF within a camera's picture, whose second directory is a small picture.
ImageProperties ReadExifProperties(Bytes tiff);

}  // namespace vxgui::codecs
