#include "vxgui/platform/gdiplus/text/TextContrast.h"

#include <algorithm>
#include <cmath>

namespace vxgui::gdiplus {
namespace {

// Contrasts stand for gammas from 1 to 2.2; the neutral one is 1.4.
ContrastTable MakeTable(UINT contrast) {
    ContrastTable table;
    const double gamma = 1 + contrast / 10.0;
    for (size_t i = 0; i < table.size(); ++i) {
        const double share = std::pow(static_cast<double>(i) / 255, 1.4 / gamma);
        table[i] = static_cast<uint8_t>(std::lround(share * 255));
    }
    return table;
}

}  // namespace

const ContrastTable& TableOfContrast(UINT contrast) {
    static const auto tables = [] {
        std::array<ContrastTable, kMostContrast + 1> all;
        for (UINT i = 0; i < all.size(); ++i) all[i] = MakeTable(i);
        return all;
    }();
    return tables[std::min(contrast, kMostContrast)];
}

}  // namespace vxgui::gdiplus
