#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "vxgui/base/Export.h"

/// What the two dialogs and the message box need of a form toolkit. Nothing here is the library's
/// own but these interfaces, so that a toolkit lives in a shared object that knows nothing else.
namespace vxgui::forms {

/// A pane's pixels, 0x00RRGGBB, the top row first, in the form's background colour until they are
/// painted; `stride` in bytes.
struct PanePixels {
    uint32_t* first;
    ptrdiff_t stride;
    int32_t width, height;
};

enum class Pane { Before, After };
enum class AdjustButton { Ok, Cancel, Reset };
enum class AdjustBox { Colourize, Preview };

/// The texts of the colour dialog.
struct AdjustCaptions {
    std::u16string_view form;
    std::u16string_view values[3];  ///< hue, saturation, lightness
    std::u16string_view colourize, preview;
    std::u16string_view ok, cancel, reset;
    int32_t wheelSide;  ///< pixels
};

/// What happens on the form of the colour dialog. `index`: 0 hue, 1 saturation, 2 lightness.
/// A control that the dialog sets to another value tells so too, as when a user does it.
class AdjustEvents {
public:
    virtual ~AdjustEvents() = default;
    /// Before the form is shown; the pane's size in pixels.
    virtual void Loaded(double viewWidth, double viewHeight) = 0;
    virtual void Resized(double viewWidth, double viewHeight) = 0;
    virtual void Unloaded() = 0;

    virtual void SliderChanged(int index, int32_t value) = 0;
    virtual void UpDownChanged(int index, int32_t value) = 0;
    virtual void TextChanged(int index, std::u16string_view text) = 0;
    /// Whether a key may reach the text box; `caret` is the place it would be typed at.
    virtual bool AllowsKey(char16_t key, int32_t caret) const = 0;
    virtual void ColourizeChanged(bool ticked) = 0;
    virtual void PreviewChanged(bool ticked) = 0;
    virtual void ButtonPressed(AdjustButton button) = 0;
    virtual void TimerFired() = 0;

    /// Steps of the zoom.
    virtual void ZoomUp() = 0;
    virtual void ZoomDown() = 0;
    /// The mouse on either pane, in pixels.
    virtual void MousePressed(double x, double y) = 0;
    virtual void MouseMoved(double x, double y) = 0;
    virtual void MouseReleased(double x, double y) = 0;

    virtual void PaintWheel(const PanePixels& pixels) = 0;
    virtual void PaintPane(Pane pane, const PanePixels& pixels) = 0;
};

/// The form of the colour dialog, as its logic drives it.
class AdjustForm {
public:
    virtual ~AdjustForm() = default;
    virtual void SliderRange(int index, int32_t min, int32_t max) = 0;
    virtual void SliderValue(int index, int32_t value) = 0;
    virtual void UpDownRange(int index, int32_t min, int32_t max) = 0;
    virtual void UpDownValue(int index, int32_t value) = 0;
    virtual void Text(int index, std::u16string_view text) = 0;
    virtual void Ticked(AdjustBox box, bool ticked) = 0;
    virtual void ScaleText(std::u16string_view text) = 0;
    virtual void TimingText(std::u16string_view text) = 0;
    virtual void RepaintWheel() = 0;
    virtual void RepaintPane(Pane pane) = 0;
    virtual void StartTimer(int32_t milliseconds) = 0;
    virtual void StopTimer() = 0;
    virtual void Hourglass(bool shown) = 0;
    /// Shows the form until `Close`; closing it by its frame presses `Cancel`.
    virtual void ShowModal() = 0;
    virtual void Close() = 0;
};

/// The file chooser: `filter` is "name|*.a;*.b|name|*.c", `filterIndex` counts from 1.
struct OpenFileQuestion {
    std::u16string_view fileName, caption, filter;
    int32_t filterIndex;
    intptr_t owner;
};
struct OpenFileAnswer {
    std::u16string fileName;
    int32_t filterIndex;
};

class Toolkit {
public:
    virtual ~Toolkit() = default;
    /// False, with the reason, where no window can be shown: no display, or another thread's.
    virtual bool IsUsable(std::string* reason) = 0;
    virtual std::unique_ptr<AdjustForm> CreateAdjustForm(AdjustEvents& events,
                                                         const AdjustCaptions& captions) = 0;
    /// The file must exist. False when the user cancelled.
    virtual bool OpenFile(const OpenFileQuestion& question, OpenFileAnswer* answer) = 0;
    /// Answers the button, 1 for OK.
    virtual int32_t MessageBox(std::u16string_view text, std::u16string_view caption,
                               uint32_t style) = 0;
    /// Handles what is waiting for the windows.
    virtual void PumpEvents() = 0;
};

/// The toolkit in force when it can show windows, else null, of which the trace says why. Finds
/// and opens "libvxgui-qt6.so" on first need: beside the library or the program, then where the
/// system looks for libraries.
VXPLATFORM_API Toolkit* UsableToolkit();
/// A host's own, which must outlive its use; null for none at all: the dialogs then answer as if
/// they had been cancelled.
VXPLATFORM_API void SetToolkit(Toolkit* toolkit);
/// Undoes `SetToolkit`, so that the next need looks for one again.
VXPLATFORM_API void ForgetToolkit();
/// Handles what is waiting for the windows of a toolkit that is open already.
VXPLATFORM_API void PumpEvents();

}  // namespace vxgui::forms

/// What the shared object of a toolkit exports, under the name "VxGuiToolkit"; it keeps the object.
extern "C" using VxGuiToolkitFunction = vxgui::forms::Toolkit * ();
