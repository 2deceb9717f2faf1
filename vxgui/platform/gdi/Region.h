#pragma once

#include "vxgui/platform/gdi/GdiObject.h"
#include "vxgui/platform/gdi/PixelRegion.h"

namespace vxgui::gdi {

/// A region under a handle.
class Region final : public GdiObject {
public:
    static constexpr GdiKind kKind = GdiKind::Region;

    explicit Region(PixelRegion region) : GdiObject(kKind), shape(std::move(region)) {}

    PixelRegion shape;
};

}  // namespace vxgui::gdi
