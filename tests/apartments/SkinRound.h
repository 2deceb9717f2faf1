#pragma once

#include <cstdint>

#include "tests/support/TemporaryFolder.h"
#include "vxgui/vxgui.h"

namespace vxgui::test {

/// A host's day with a skin, on objects and in a folder that belong to the calling thread: it
/// loads the skin, paints all items, adjusts their colours, saves the skin and loads it again.
class SkinRound {
public:
    SkinRound() { canvas_->Create(120, 60); }

    /// A sum over all pixels that were painted. The number says by how much colours are turned.
    uint64_t Run(int number);

private:
    uint64_t PaintAll(const ThemeSet& set);
    void Paint(ThemeItem& item);
    uint64_t Sum() const;

    const Ref<cAlphaDIBSection> canvas_ = New<cAlphaDIBSection>();
    const TemporaryFolder folder_;
};

}  // namespace vxgui::test
