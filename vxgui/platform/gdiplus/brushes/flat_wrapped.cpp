#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Matrix.h"
#include "vxgui/platform/gdiplus/brushes/LineBrush.h"
#include "vxgui/platform/gdiplus/brushes/PathBrush.h"
#include "vxgui/platform/gdiplus/brushes/TextureBrush.h"
#include "vxgui/platform/gdiplus_gradient.h"
#include "vxgui/platform/gdiplus_texture.h"

namespace vxgui::gdiplus {
namespace {

template <class T>
GpStatus GetWrap(const GpBrush* brush, WrapMode* wrap) {
    return FlatGet<T>(brush, wrap, [](T& found) { return found.Wrap(); });
}

template <class T>
GpStatus SetWrap(GpBrush* brush, WrapMode wrap) {
    if (!T::Takes(wrap)) return InvalidParameter;
    return FlatSet<T>(brush, [&](T& found) { found.Wrap(wrap); });
}

template <class T>
GpStatus GetTransform(const GpBrush* brush, GpMatrix* matrix) {
    return FlatOn<Matrix>(matrix, [&](Matrix& result) {
        return FlatGet<T>(brush, &result.value, [](T& found) { return found.transform; });
    });
}

/// A matrix without an inverse would leave the brush nothing to paint.
template <class T>
GpStatus SetTransform(GpBrush* brush, const GpMatrix* matrix) {
    return FlatOn<Matrix>(matrix, [&](Matrix& given) {
        if (!Inverse(given.value)) return InvalidParameter;
        return FlatSet<T>(brush, [&](T& found) { found.transform = given.value; });
    });
}

template <class T>
GpStatus ResetTransform(GpBrush* brush) {
    return FlatSet<T>(brush, [](T& found) { found.transform = {}; });
}

template <class T>
GpStatus ChangeTransform(GpBrush* brush, const Affine& change, MatrixOrder order) {
    if (!IsOrder(order)) return InvalidParameter;
    return FlatSet<T>(
        brush, [&](T& found) { found.transform = Combined(found.transform, change, order); });
}

template <class T>
GpStatus MultiplyTransform(GpBrush* brush, const GpMatrix* matrix, MatrixOrder order) {
    return FlatOn<Matrix>(matrix, [&](Matrix& given) {
        if (!Inverse(given.value)) return InvalidParameter;
        return ChangeTransform<T>(brush, given.value, order);
    });
}

}  // namespace

extern "C" {

/// The functions that all brushes with a transform and a wrap mode have, for the kind of that name.
#define VXGUI_WRAPPED_BRUSH(Name, T)                                                               \
    GpStatus GdipGet##Name##WrapMode(GpBrush* brush, WrapMode* wrapmode) {                         \
        return GetWrap<T>(brush, wrapmode);                                                        \
    }                                                                                              \
    GpStatus GdipSet##Name##WrapMode(GpBrush* brush, WrapMode wrapmode) {                          \
        return SetWrap<T>(brush, wrapmode);                                                        \
    }                                                                                              \
    GpStatus GdipGet##Name##Transform(GpBrush* brush, GpMatrix* matrix) {                          \
        return GetTransform<T>(brush, matrix);                                                     \
    }                                                                                              \
    GpStatus GdipSet##Name##Transform(GpBrush* brush, const GpMatrix* matrix) {                    \
        return SetTransform<T>(brush, matrix);                                                     \
    }                                                                                              \
    GpStatus GdipReset##Name##Transform(GpBrush* brush) { return ResetTransform<T>(brush); }       \
    GpStatus GdipMultiply##Name##Transform(GpBrush* brush, const GpMatrix* matrix,                 \
                                           MatrixOrder order) {                                    \
        return MultiplyTransform<T>(brush, matrix, order);                                         \
    }                                                                                              \
    GpStatus GdipTranslate##Name##Transform(GpBrush* brush, REAL dx, REAL dy, MatrixOrder order) { \
        return ChangeTransform<T>(brush, Affine::Translation(dx, dy), order);                      \
    }                                                                                              \
    GpStatus GdipScale##Name##Transform(GpBrush* brush, REAL sx, REAL sy, MatrixOrder order) {     \
        return ChangeTransform<T>(brush, Affine::Scaling(sx, sy), order);                          \
    }                                                                                              \
    GpStatus GdipRotate##Name##Transform(GpBrush* brush, REAL angle, MatrixOrder order) {          \
        return ChangeTransform<T>(brush, Affine::Rotation(angle), order);                          \
    }

VXGUI_WRAPPED_BRUSH(Texture, TextureBrush)
VXGUI_WRAPPED_BRUSH(PathGradient, PathBrush)
VXGUI_WRAPPED_BRUSH(Line, LineBrush)

}  // extern "C"

}  // namespace vxgui::gdiplus
