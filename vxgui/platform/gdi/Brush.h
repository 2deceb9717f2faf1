#pragma once

#include "vxgui/platform/gdi/GdiObject.h"

namespace vxgui::gdi {

class DeviceContext;

/// What areas are filled with.
class Brush : public GdiObject {
public:
    static constexpr GdiKind kKind = GdiKind::Brush;

    explicit Brush(const LOGBRUSH& record) : GdiObject(kKind), record_(record) {}

    const LOGBRUSH& Description() const { return record_; }
    bool IsNull() const { return record_.lbStyle == BS_NULL; }
    bool IsSolid() const { return record_.lbStyle == BS_SOLID; }
    int Record(int size, void* buffer) const override;

    /// Writes the colours 0x00RRGGBB of `count` pixels from device point (x, y) rightwards.
    /// Called for brushes that aren't solid or null.
    virtual void Row(const DeviceContext& dc, int32_t x, int32_t y, int32_t count,
                     uint32_t* colors) const;

private:
    const LOGBRUSH record_;
};

}  // namespace vxgui::gdi
