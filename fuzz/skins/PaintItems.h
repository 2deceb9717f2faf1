#pragma once

#include "vxgui/surface/cAlphaDIBSection.h"
#include "vxgui/theme/ThemeItems.h"

namespace vxgui::fuzz {

/// Paints each item in each state, wherever its file has led it.
inline void PaintItems(const Ref<ThemeItems>& items) {
    if (!items) return;
    const auto canvas = New<cAlphaDIBSection>();
    canvas->Create(40, 30);
    for (const Ref<ThemeItem>& item : *items) {
        for (int32_t state = 0; state < E_ItemStateMax; ++state) {
            item->State(state);
            item->DrawBackground(canvas->hDC(), 1, 2, 38, 26, -1, -1);
        }
    }
}

}  // namespace vxgui::fuzz
