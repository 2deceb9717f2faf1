#include <new>

#include "vxgui/platform/gdi/DeviceContext.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui::gdi {

int SaveDC(HDC handle) try {
    const GdiRef<DeviceContext> dc = FindContext(handle);
    if (!dc) return 0;
    dc->saved.push_back(dc->state);
    return static_cast<int>(dc->saved.size());
} catch (const std::bad_alloc&) {
    return 0;
}

BOOL RestoreDC(HDC handle, int level) {
    const GdiRef<DeviceContext> dc = FindContext(handle);
    if (!dc) return 0;
    const auto count = static_cast<int64_t>(dc->saved.size());
    // Below 0: counted back from the last one, which is -1.
    const int64_t wanted = level < 0 ? count + level + 1 : level;
    if (wanted < 1 || wanted > count) return 0;
    dc->state = std::move(dc->saved[static_cast<size_t>(wanted - 1)]);
    dc->saved.resize(static_cast<size_t>(wanted - 1));
    return 1;
}

}  // namespace vxgui::gdi
