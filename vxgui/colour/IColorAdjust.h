#pragma once

#include "vxgui/base/Object.h"
#include "vxgui/pixels/ARGB.h"

namespace vxgui {

/// A colour transform that `cAlphaDIBSection::AdjustColor` runs over its pixels. Hosts may supply
/// their own.
class VXGUI_API IColorAdjust : public Object {
public:
    /// Writes the transformed colour of `sARGB` into `dARGB`, which holds the pixel as it is now.
    virtual void TransColor(ARGB& sARGB, ARGB& dARGB) = 0;
    /// Shows where the transform is set up; without such a place it does nothing.
    virtual void ShowConfiguration();

protected:
    ~IColorAdjust() override;
};

}  // namespace vxgui
