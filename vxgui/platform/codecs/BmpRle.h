#pragma once

#include "vxgui/platform/codecs/BmpHeader.h"

namespace vxgui::codecs {

/// Unpacks the run-length forms of 4 and 8 bits to indexes, a byte each. Pixels that the file
/// passes over have index 0. False when the file ends within the picture.
bool DecodeBmpRuns(const BmpHeader& header, Bytes packed, const PixelRows& rows);

}  // namespace vxgui::codecs
