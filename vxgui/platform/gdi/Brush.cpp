#include "vxgui/platform/gdi/Brush.h"

#include <algorithm>

#include "vxgui/platform/gdi/Record.h"

namespace vxgui::gdi {

int Brush::Record(int size, void* buffer) const { return CopyRecord(record_, size, buffer); }

void Brush::Row(const DeviceContext&, int32_t, int32_t, int32_t count, uint32_t* colors) const {
    std::fill_n(colors, count, SwapRedAndBlue(record_.lbColor));
}

}  // namespace vxgui::gdi
