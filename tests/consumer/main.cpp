// A host outside the tree: it sees the installed headers and libraries alone.
#include <cstdint>
#include <cstdio>
#include <vector>

#include "vxgui/frame/Version.h"
#include "vxgui/platform/gdi.h"
#include "vxgui/theme/ThemeItem.h"

int main() {
    std::vector<uint32_t> pixels(16 * 16);
    const vxgui::gdi::HDC dc = vxgui::gdi::CreateHostDC({pixels.data(), 16, 16, 64, false});
    const auto strip = vxgui::New<vxgui::cAlphaDIBSection>();
    strip->Create(16, 16);
    static_cast<uint32_t*>(strip->DIBSectionBitsPtr())[0] = 0xFF336699;
    const auto item = vxgui::New<vxgui::ThemeItem>();
    item->SetImage(strip, 1, 0, vxgui::Normal);
    item->DrawBackground(dc, 0, 0, 16, 16, 0, -1);
    vxgui::gdi::DeleteDC(dc);
    // The first pixel in memory is the bottom left one of the picture.
    const bool painted = pixels[15 * 16] == 0xFF336699;
    std::printf("library %d, %s\n", vxgui::LibraryVersion(), painted ? "painted" : "not painted");
    return painted ? 0 : 1;
}
