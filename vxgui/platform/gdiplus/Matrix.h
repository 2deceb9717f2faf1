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

}  // namespace vxgui::gdiplus
