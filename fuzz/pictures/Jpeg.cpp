#include "fuzz/pictures/DecodeAs.h"

FUZZER(Jpeg, input) { vxgui::fuzz::DecodeAs(vxgui::codecs::ImageFormat::Jpeg, input); }
