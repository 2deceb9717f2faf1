#pragma once

#include "vxgui/frame/Stub.h"
#include "vxgui/platform/gdi_surfaces.h"

namespace vxgui {

/// Binds export `index` of "msimg32.dll": 1 AlphaBlend, 2 TransparentBlt, 3 and 4 GradientFill.
/// False, and the stub stays as it is, when the module or the export is missing.
bool BindMsImg32(int32_t index, corehlp::Slot stub);

template <int32_t kIndex>
struct MsImg32Binder {
    static bool Bind(corehlp::Slot stub) { return BindMsImg32(kIndex, stub); }
};

/// The late-bound twins of the drawing calls of the same names.
namespace msimg32 {

inline constexpr Stub<MsImg32Binder<1>, decltype(gdi::AlphaBlend)> AlphaBlend;
inline constexpr Stub<MsImg32Binder<2>, decltype(gdi::TransparentBlt)> TransparentBlt;
/// One export under two signatures: bands between two vertices, and triangles of three.
inline constexpr Stub<MsImg32Binder<3>,
                      BOOL(gdi::HDC dc, const gdi::TRIVERTEX* vertices, DWORD vertexCount,
                           const gdi::GRADIENT_RECT* mesh, DWORD meshCount, DWORD mode)>
    GradientFillRect;
inline constexpr Stub<MsImg32Binder<4>,
                      BOOL(gdi::HDC dc, const gdi::TRIVERTEX* vertices, DWORD vertexCount,
                           const gdi::GRADIENT_TRIANGLE* mesh, DWORD meshCount, DWORD mode)>
    GradientFillTriangle;

}  // namespace msimg32
}  // namespace vxgui
