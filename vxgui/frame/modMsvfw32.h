#pragma once

#include "vxgui/frame/Stub.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui {

/// Binds export `index` of "msvfw32.dll": 1 DrawDibOpen, 2 DrawDibClose, 3 DrawDibDraw. False,
/// and the stub stays as it is, when the module or the export is missing.
bool BindMsvfw32(int32_t index, corehlp::Slot stub);

template <int32_t kIndex>
struct Msvfw32Binder {
    static bool Bind(corehlp::Slot stub) { return BindMsvfw32(kIndex, stub); }
};

/// The late-bound twins of the drawing calls of the same names.
namespace msvfw32 {

inline constexpr Stub<Msvfw32Binder<1>, decltype(gdi::DrawDibOpen)> DrawDibOpen;
inline constexpr Stub<Msvfw32Binder<2>, decltype(gdi::DrawDibClose)> DrawDibClose;
inline constexpr Stub<Msvfw32Binder<3>, decltype(gdi::DrawDibDraw)> DrawDibDraw;

}  // namespace msvfw32
}  // namespace vxgui
