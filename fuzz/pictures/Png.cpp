#include "fuzz/pictures/DecodeAs.h"

FUZZER(Png, input) { vxgui::fuzz::DecodeAs(vxgui::codecs::ImageFormat::Png, input); }
