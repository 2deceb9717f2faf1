#include "fuzz/Fuzz.h"
#include "vxgui/surface/cAlphaDIBSection.h"

FUZZER(Tga, input) {
    vxgui::New<vxgui::cAlphaDIBSection>()->CreateFromTGAPtr(input.data(),
                                                            static_cast<int32_t>(input.size()));
}
