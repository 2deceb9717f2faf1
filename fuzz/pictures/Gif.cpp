#include "fuzz/pictures/DecodeAs.h"

FUZZER(Gif, input) { vxgui::fuzz::DecodeAs(vxgui::codecs::ImageFormat::Gif, input); }
