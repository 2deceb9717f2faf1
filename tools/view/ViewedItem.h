#pragma once

#include <cstdint>
#include <optional>

namespace vxgui::view {

/// What mouse, keys and focus have done to a control, and the state that it shows for it.
class ViewedItem {
public:
    /// The mouse stands on the control, or no longer does.
    void Hover(bool over) { over_ = over; }
    /// The button goes down or up; it presses the control only where the mouse is on it.
    void Press() { held_ = over_; }
    void Release() { held_ = false; }
    /// The space bar presses a control that has the focus, wherever the mouse is.
    void PressByKey() { heldByKey_ = focused_; }
    void ReleaseByKey() { heldByKey_ = false; }
    /// Who loses the focus lets go of the space bar too.
    void Focus(bool focused);
    /// A control out of use remembers the mouse and the focus for later.
    void Enable(bool enabled) { enabled_ = enabled; }
    bool IsEnabled() const { return enabled_; }
    /// The control that Return presses, as it looks without mouse and focus.
    void MakeDefault(bool isDefault) { default_ = isDefault; }
    /// Shows this state whatever happens; none follows mouse, keys and focus again.
    void Hold(std::optional<int32_t> state) { fixed_ = state; }
    bool IsHeld() const { return fixed_.has_value(); }

    /// An E_ITEMSTATE. A button that is held with the mouse beside the control isn't pressed, nor
    /// does the mouse stand on it.
    int32_t State() const;

private:
    bool over_ = false;
    bool held_ = false;
    bool heldByKey_ = false;
    bool focused_ = false;
    bool enabled_ = true;
    bool default_ = false;
    std::optional<int32_t> fixed_;
};

}  // namespace vxgui::view
