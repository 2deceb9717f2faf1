#include <array>

#include "vxgui/platform/gdi/HandleTable.h"
#include "vxgui/platform/gdi/StockObjects.h"
#include "vxgui/platform/gdi_shapes.h"

namespace vxgui::gdi {
namespace {

constexpr COLORREF kBlack = RGB(0x00, 0x00, 0x00);
constexpr COLORREF kWhite = RGB(0xFF, 0xFF, 0xFF);
constexpr COLORREF kDarkGrey = RGB(0x40, 0x40, 0x40);
constexpr COLORREF kGrey = RGB(0x80, 0x80, 0x80);
constexpr COLORREF kFace = RGB(0xD4, 0xD0, 0xC8);
constexpr COLORREF kNavy = RGB(0x0A, 0x24, 0x6A);

// The classic scheme, in the published order of the indexes.
constexpr std::array kColors = {
    kFace,                  // scroll bar
    RGB(0x3A, 0x6E, 0xA5),  // desktop
    kNavy,                  // active caption
    kGrey,                  // inactive caption
    kFace,                  // menu
    kWhite,                 // window
    kBlack,                 // window frame
    kBlack,                 // menu text
    kBlack,                 // window text
    kWhite,                 // caption text
    kFace,                  // active border
    kFace,                  // inactive border
    kGrey,                  // application workspace
    kNavy,                  // highlight
    kWhite,                 // highlight text
    kFace,                  // button face
    kGrey,                  // button shadow
    kGrey,                  // grey text
    kBlack,                 // button text
    kFace,                  // inactive caption text
    kWhite,                 // button highlight
    kDarkGrey,              // dark shadow of edges
    kFace,                  // light side of edges
    kBlack,                 // tool tip text
    RGB(0xFF, 0xFF, 0xE1),  // tool tip
    kBlack,                 // not assigned
    RGB(0x00, 0x00, 0x80),  // hot-tracked item
    RGB(0xA6, 0xCA, 0xF0),  // far end of the active caption
    RGB(0xC0, 0xC0, 0xC0),  // far end of the inactive caption
    kNavy,                  // highlighted flat menu item
    kFace,                  // menu bar
};

using Brushes = std::array<Brush*, kColors.size()>;

Brushes MakeBrushes() {
    Brushes brushes;
    for (size_t i = 0; i < brushes.size(); ++i) {
        brushes[i] = Permanently(std::make_unique<Brush>(LOGBRUSH{BS_SOLID, kColors[i], 0}));
    }
    return brushes;
}

bool IsColor(int index) { return index >= 0 && index < static_cast<int>(kColors.size()); }

}  // namespace

DWORD GetSysColor(int index) { return IsColor(index) ? kColors[static_cast<size_t>(index)] : 0; }

HBRUSH GetSysColorBrush(int index) {
    static const Brushes brushes = MakeBrushes();
    if (!IsColor(index)) return nullptr;
    return static_cast<HBRUSH>(brushes[static_cast<size_t>(index)]->Handle());
}

}  // namespace vxgui::gdi
