#pragma once

#include <memory>

#include "vxgui/base/Object.h"
#include "vxgui/base/Ref.h"
#include "vxgui/colour/AdjustValues.h"
#include "vxgui/colour/ColorWheel.h"
#include "vxgui/colour/PictureView.h"
#include "vxgui/platform/forms.h"
#include "vxgui/platform/ole.h"

namespace vxgui {

class cAlphaDIBSection;

/// The logic of the dialog that changes hue, saturation and lightness, without any form toolkit.
/// It can be shown again; its numbers stay from the last time.
class VXGUI_API frmAdjustHLS : public Object, private forms::AdjustEvents {
public:
    frmAdjustHLS();

    /// Channels of 0 to 255 of the pure colour of a hue in degrees.
    void HueRGB(int32_t hue, int32_t& r, int32_t& g, int32_t& b) const;
    /// The hue from 0 to 360, the others from 0 to 240; a COLORREF.
    int32_t HLSCOLOR(int32_t H, int32_t L, int32_t S) const;

    // For the library's own classes.
    /// The surface under adjustment, which the owner keeps alive while the form is shown.
    VXGUI_LOCAL void Surface(cAlphaDIBSection* surface) { surface_ = surface; }
    /// Shows the form; without a toolkit it is as if it had been cancelled.
    VXGUI_LOCAL void ShowModal(forms::Toolkit* toolkit);
    /// True when the last showing was closed by the OK button.
    VXGUI_LOCAL bool Result() const { return result_; }

protected:
    ~frmAdjustHLS() override;

private:
    // The form's events.
    void Loaded(double viewWidth, double viewHeight) override;
    void Resized(double viewWidth, double viewHeight) override;
    void Unloaded() override;
    void SliderChanged(int index, int32_t value) override;
    void UpDownChanged(int index, int32_t value) override;
    void TextChanged(int index, std::u16string_view text) override;
    bool AllowsKey(char16_t key, int32_t caret) const override;
    void ColourizeChanged(bool ticked) override;
    void PreviewChanged(bool ticked) override;
    void ButtonPressed(forms::AdjustButton button) override;
    void TimerFired() override;
    void ZoomUp() override;
    void ZoomDown() override;
    void MousePressed(double x, double y) override;
    void MouseMoved(double x, double y) override;
    void MouseReleased(double x, double y) override;
    void PaintWheel(const forms::PanePixels& pixels) override;
    void PaintPane(forms::Pane pane, const forms::PanePixels& pixels) override;

    void PutInControls();
    void ValueChanged();
    void Preview();
    void AdjustAll(int32_t bRaiseEvent);
    void AdjustView();
    void FollowZoom();
    void EnforceBounds();
    void Accept();
    void Close(bool result);

    bool result_ = false;
    Ref<ole::Picture> unadjusted_;
    AdjustValues values_;
    bool previewTicked_ = false;
    PictureView view_;
    bool updating_ = false;
    cAlphaDIBSection* surface_ = nullptr;
    forms::AdjustForm* form_ = nullptr;  ///< while it is shown
    std::unique_ptr<ColorWheel> wheel_;  ///< while it is shown
};

}  // namespace vxgui
