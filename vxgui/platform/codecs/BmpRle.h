#pragma once

#include "vxgui/platform/codecs/BmpHeader.h"

namespace vxgui::codecs {

/// Unpacks the run-length forms of 4 and 8 bits. Pixels that the file passes over have the first
/// colour of the palette. False when the file ends within the picture.
bool DecodeBmpRuns(const BmpHeader& header, Bytes packed, const PixelRows& rows);

}  // namespace vxgui::codecs
