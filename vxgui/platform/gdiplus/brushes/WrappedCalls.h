#pragma once

#include "vxgui/platform/gdiplus/FlatAccess.h"
#include "vxgui/platform/gdiplus/Matrix.h"
#include "vxgui/platform/gdiplus/brushes/WrappedBrush.h"

/// The flat functions that all brushes with a transform and a wrap mode have; `T` is the kind.
namespace vxgui::gdiplus::brushes {

template <class T>
GpStatus GetWrap(const GpBrush* brush, WrapMode* wrap) {
    return FlatGet<T>(brush, wrap, [](T& found) { return found.Wrap(); });
}

template <class T>
GpStatus SetWrap(GpBrush* brush, WrapMode wrap) {
    if (!IsWrap(wrap)) return InvalidParameter;
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

}  // namespace vxgui::gdiplus::brushes
