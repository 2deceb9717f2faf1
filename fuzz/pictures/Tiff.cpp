#include "fuzz/pictures/DecodeAs.h"

FUZZER(Tiff, input) { vxgui::fuzz::DecodeAs(vxgui::codecs::ImageFormat::Tiff, input); }
