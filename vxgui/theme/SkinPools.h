#pragma once

#include "vxgui/text/LFonts.h"
#include "vxgui/theme/Palette.h"
#include "vxgui/theme/ThemeOwner.h"

namespace vxgui {

/// The colours and fonts of a skin. They are an object of their own, which the skin shares with
/// its items: items hold their owner, and the skin holds its items, so that an owner that were the
/// skin itself would never go away.
class VXGUI_LOCAL SkinPools : public ThemeOwner {
public:
    int32_t Colour(int32_t Index) override { return colours.Colour(Index); }
    Ref<LFont> Font(int32_t Index) override;
    Ref<LFont> SystemFont(int32_t Index);

    Palette colours;
    Ref<LFonts> fonts;  ///< by the names of their sections
};

}  // namespace vxgui
