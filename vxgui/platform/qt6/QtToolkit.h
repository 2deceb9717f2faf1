#pragma once

#include "vxgui/platform/forms.h"

namespace vxgui::qt6 {

/// Qt 6 Widgets as the form toolkit. It uses the host's application object, or makes one on first
/// need; windows belong to the thread of that object.
class QtToolkit final : public forms::Toolkit {
public:
    bool IsUsable(std::string* reason) override;
    std::unique_ptr<forms::AdjustForm> CreateAdjustForm(
        forms::AdjustEvents& events, const forms::AdjustCaptions& captions) override;
    bool OpenFile(const forms::OpenFileQuestion& question, forms::OpenFileAnswer* answer) override;
    int32_t MessageBox(std::u16string_view text, std::u16string_view caption,
                       uint32_t style) override;
    void PumpEvents() override;
};

}  // namespace vxgui::qt6
