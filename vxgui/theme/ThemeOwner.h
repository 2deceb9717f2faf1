#pragma once

#include "vxgui/base/Object.h"
#include "vxgui/base/Ref.h"
#include "vxgui/text/LFont.h"

namespace vxgui {

/// What resolves the colour and font numbers of an item.
class VXGUI_API ThemeOwner : public Object {
public:
    /// The palette's colour; -1 outside its bounds.
    virtual int32_t Colour(int32_t Index) = 0;
    /// The font of that number, or none.
    virtual Ref<LFont> Font(int32_t Index) = 0;
};

}  // namespace vxgui
