#include "vxgui/platform/gdiplus/words/Premultiply.h"

#include "vxgui/pixels/Multiversion.h"
#include "vxgui/platform/gdiplus/words/Channels.h"

namespace vxgui::gdiplus {
namespace {

VXGUI_MULTIVERSION(void, MultiplyAll, (ARGB * pixels, size_t count)) {
    using channels::kRun;
    for (size_t done = 0; done < count; done += kRun) {
        const size_t run = count - done < kRun ? count - done : kRun;
        channels::Multiply(pixels + done, run, pixels + done);
    }
}

}  // namespace

void PremultiplyRow(std::span<ARGB> pixels) { MultiplyAll(pixels.data(), pixels.size()); }

}  // namespace vxgui::gdiplus
