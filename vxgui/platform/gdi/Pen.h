#pragma once

#include "vxgui/platform/gdi/GdiObject.h"
#include "vxgui/platform/gdi/Record.h"

namespace vxgui::gdi {

/// What lines are drawn with.
class Pen : public GdiObject {
public:
    static constexpr GdiKind kKind = GdiKind::Pen;

    explicit Pen(const LOGPEN& record) : GdiObject(kKind), record_(record) {}

    const LOGPEN& Description() const { return record_; }
    int Record(int size, void* buffer) const override { return CopyRecord(record_, size, buffer); }

private:
    const LOGPEN record_;
};

}  // namespace vxgui::gdi
