#include <algorithm>

#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Pen.h"
#include "vxgui/platform/gdiplus_pen.h"

namespace vxgui::gdiplus {
namespace {

/// The published patterns, by style; one that the caller is to give is a dash without gaps.
const std::vector<REAL> kPatterns[] = {{}, {3, 1}, {1, 1}, {3, 1, 1, 1}, {3, 1, 1, 1, 1, 1}, {1}};

/// Copies a list of the pen's to the caller's array, which must be at least as long.
GpStatus CopyList(GpPen* pen, std::vector<REAL> PenSettings::*list, REAL* out, INT count) {
    if (!out) return InvalidParameter;
    return FlatOn<Pen>(pen, [&](Pen& found) {
        const std::vector<REAL>& items = found.*list;
        if (items.empty() || count < 1 || items.size() > static_cast<size_t>(count)) {
            return InvalidParameter;
        }
        std::copy(items.begin(), items.end(), out);
        return Ok;
    });
}

bool IsCompound(const std::vector<REAL>& shares) {
    return shares.size() >= 2 && shares.size() % 2 == 0 && shares.front() >= 0 &&
           shares.back() <= 1 && std::is_sorted(shares.begin(), shares.end());
}

std::vector<REAL> ListOf(const REAL* items, INT count) {
    if (!items || count < 1) return {};
    return {items, items + count};
}

}  // namespace

extern "C" {

GpStatus GdipSetPenDashStyle(GpPen* pen, DashStyle dashStyle) {
    if (dashStyle < DashStyleSolid || dashStyle > DashStyleCustom) return InvalidParameter;
    return FlatSet<Pen>(pen, [&](Pen& found) {
        const bool keeps = dashStyle == DashStyleCustom && !found.dashes.empty();
        if (!keeps) found.dashes = kPatterns[dashStyle];
        found.dashStyle = dashStyle;
    });
}

GpStatus GdipGetPenDashStyle(GpPen* pen, DashStyle* dashStyle) {
    return FlatGet<Pen>(pen, dashStyle, [](Pen& found) { return found.dashStyle; });
}

GpStatus GdipGetPenDashCount(GpPen* pen, INT* count) {
    return FlatGet<Pen>(pen, count,
                        [](Pen& found) { return static_cast<INT>(found.dashes.size()); });
}

GpStatus GdipSetPenDashArray(GpPen* pen, const REAL* dash, INT count) {
    return FlatOn<Pen>(pen, [&](Pen& found) {
        std::vector<REAL> dashes = ListOf(dash, count);
        const auto isLength = [](REAL length) { return length > 0; };
        if (dashes.empty() || !std::all_of(dashes.begin(), dashes.end(), isLength)) {
            return InvalidParameter;
        }
        found.dashes = std::move(dashes);
        found.dashStyle = DashStyleCustom;
        return Ok;
    });
}

GpStatus GdipGetPenDashArray(GpPen* pen, REAL* dash, INT count) {
    return CopyList(pen, &PenSettings::dashes, dash, count);
}

GpStatus GdipGetPenCompoundCount(GpPen* pen, INT* count) {
    return FlatGet<Pen>(pen, count,
                        [](Pen& found) { return static_cast<INT>(found.compound.size()); });
}

GpStatus GdipSetPenCompoundArray(GpPen* pen, const REAL* dash, INT count) {
    return FlatOn<Pen>(pen, [&](Pen& found) {
        std::vector<REAL> shares = ListOf(dash, count);
        if (!IsCompound(shares)) return InvalidParameter;
        found.compound = std::move(shares);
        return Ok;
    });
}

GpStatus GdipGetPenCompoundArray(GpPen* pen, REAL* dash, INT count) {
    return CopyList(pen, &PenSettings::compound, dash, count);
}

}  // extern "C"

}  // namespace vxgui::gdiplus
