#include "vxgui/platform/gdi/GdiObject.h"

#include "vxgui/platform/gdi/HandleTable.h"

namespace vxgui::gdi {

int GdiObject::Record(int, void*) const { return 0; }

void GdiObject::AddReference() { HandleTable::AddReference(*slot_); }

void GdiObject::Release() { HandleTable::Release(*slot_); }

void GdiObject::RemoveSelection() {
    const uint32_t before = Subtract(selections_, 1u);
    if ((before & ~kDoomed) != 1) return;
    Deselected();
    if (before & kDoomed) HandleTable::Retire(*this);
}

void GdiObject::Delete() {
    if ((selections_.fetch_or(kDoomed) & ~kDoomed) == 0) HandleTable::Retire(*this);
}

}  // namespace vxgui::gdi
