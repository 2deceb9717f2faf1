#include "vxgui/platform/gdi/shapes/EdgeColors.h"

namespace vxgui::gdi {
namespace {

// A ring by its look. "Soft" swaps the two lights, or the two shadows, of the rings.
struct Ring {
    UINT raised, sunken;  // bits of the edge
    EdgeColors raisedColors, softRaisedColors, sunkenColors, softSunkenColors;
    EdgeColors flat, mono;
};

constexpr Ring kOuter = {
    BDR_RAISEDOUTER,
    BDR_SUNKENOUTER,
    {COLOR_3DLIGHT, COLOR_3DDKSHADOW},
    {COLOR_BTNHIGHLIGHT, COLOR_3DDKSHADOW},
    {COLOR_BTNSHADOW, COLOR_BTNHIGHLIGHT},
    {COLOR_3DDKSHADOW, COLOR_BTNHIGHLIGHT},
    {COLOR_BTNSHADOW, COLOR_BTNSHADOW},
    {COLOR_WINDOWFRAME, COLOR_WINDOWFRAME},
};
constexpr Ring kInner = {
    BDR_RAISEDINNER,
    BDR_SUNKENINNER,
    {COLOR_BTNHIGHLIGHT, COLOR_BTNSHADOW},
    {COLOR_3DLIGHT, COLOR_BTNSHADOW},
    {COLOR_3DDKSHADOW, COLOR_3DLIGHT},
    {COLOR_BTNSHADOW, COLOR_3DLIGHT},
    {COLOR_BTNFACE, COLOR_BTNFACE},
    {COLOR_WINDOW, COLOR_WINDOW},
};

std::optional<EdgeColors> ColorsOf(const Ring& ring, UINT edge, UINT flags) {
    const bool raised = (edge & ring.raised) != 0;
    const bool sunken = (edge & ring.sunken) != 0;
    if (!raised && !sunken) return std::nullopt;
    if (flags & BF_MONO) return ring.mono;
    if (flags & BF_FLAT) return ring.flat;
    if (raised && sunken) return std::nullopt;
    const bool soft = (flags & BF_SOFT) != 0;
    if (raised) return soft ? ring.softRaisedColors : ring.raisedColors;
    return soft ? ring.softSunkenColors : ring.sunkenColors;
}

bool AsksForBoth(const Ring& ring, UINT edge) {
    return (edge & ring.raised) && (edge & ring.sunken);
}

}  // namespace

std::optional<EdgeColors> OuterColors(UINT edge, UINT flags) {
    return ColorsOf(kOuter, edge, flags);
}
std::optional<EdgeColors> InnerColors(UINT edge, UINT flags) {
    return ColorsOf(kInner, edge, flags);
}

bool IsContradictory(UINT edge, UINT flags) {
    if (flags & (BF_FLAT | BF_MONO)) return false;
    return AsksForBoth(kOuter, edge) || AsksForBoth(kInner, edge);
}

int MiddleColor(UINT flags) { return flags & BF_MONO ? COLOR_WINDOW : COLOR_BTNFACE; }

}  // namespace vxgui::gdi
