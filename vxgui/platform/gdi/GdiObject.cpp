#include "vxgui/platform/gdi/GdiObject.h"

#include "vxgui/platform/gdi/HandleTable.h"

namespace vxgui::gdi {

int GdiObject::Record(int, void*) const { return 0; }

void GdiObject::RemoveSelection() {
    const uint32_t before = Subtract(selections_, 1u);
    if ((before & ~kDoomed) != 1) return;
    Deselected();
    if (before & kDoomed) HandleTable::Retire(*this);
}

void GdiObject::Delete() {
    uint32_t before = selections_.load();
    while (!Exchange(selections_, before, before | kDoomed)) {
    }
    if ((before & ~kDoomed) == 0) HandleTable::Retire(*this);
}

}  // namespace vxgui::gdi
