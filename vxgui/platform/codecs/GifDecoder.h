#pragma once

#include "vxgui/platform/codecs/ImageDecoder.h"

namespace vxgui::codecs {

bool IsGif(Bytes bytes);
/// The first picture alone on the canvas.
std::unique_ptr<ImageDecoder> OpenGif(Bytes bytes);
/// What the canvas shows at a picture of the sequence, those before it included as far as they
/// stay. All but the first have 32-bit pixels.
std::unique_ptr<ImageDecoder> OpenGifFrame(Bytes bytes, int frame);
int GifFrameCount(Bytes bytes);

}  // namespace vxgui::codecs
