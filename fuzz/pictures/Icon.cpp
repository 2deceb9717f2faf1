#include "fuzz/pictures/DecodeAs.h"
#include "vxgui/platform/ole.h"

FUZZER(Icon, input) {
    vxgui::fuzz::DecodeAs(vxgui::codecs::ImageFormat::Icon, input);
    vxgui::ole::OleLoadPicture(input.data(), input.size());
}
