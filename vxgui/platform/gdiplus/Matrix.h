#pragma once

#include "vxgui/platform/gdiplus/Affine.h"
#include "vxgui/platform/gdiplus/FlatObject.h"

namespace vxgui::gdiplus {

/// What a matrix handle names.
class Matrix final : public FlatObject {
public:
    explicit Matrix(const Affine& value) : value(value) {}

    Affine value;
};

/// The matrix of a handle that may be null for the identity; none for a dead handle.
inline std::optional<Affine> MatrixOrIdentity(const GpMatrix* handle) {
    if (!handle) return Affine{};
    const Ref<Matrix> found = Find<Matrix>(handle);
    return found ? std::optional(found->value) : std::nullopt;
}

}  // namespace vxgui::gdiplus
