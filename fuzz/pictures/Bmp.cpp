#include "fuzz/pictures/DecodeAs.h"

FUZZER(Bmp, input) { vxgui::fuzz::DecodeAs(vxgui::codecs::ImageFormat::Bmp, input); }
