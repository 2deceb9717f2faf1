#include <algorithm>

#include "vxgui/base/NumberText.h"
#include "vxgui/base/Rounding.h"
#include "vxgui/colour/frmAdjustHLS.h"

// The values run in a ring: slider, up-down control, text, and from the text to the number of the
// present mode and, when it asks for another place, to the slider again.
namespace vxgui {
namespace {

constexpr int32_t kPause = 500;  // milliseconds without a change, before a preview
constexpr char16_t kBackspace = 8;

}  // namespace

void frmAdjustHLS::PutInControls() {
    updating_ = true;
    for (int i = 0; i < AdjustValues::kCount; ++i) {
        const SliderRange range = values_.Range(i);
        const int32_t place = values_.Mirrored(i, values_.Value(i));
        // Both ranges first, so that neither control cuts the value on its way.
        form_->UpDownRange(i, range.min, range.max);
        form_->SliderRange(i, range.min, range.max);
        form_->SliderValue(i, place);
        // The same place can mean another number in the other mode, and an empty box 0, of which
        // no event tells.
        SliderChanged(i, place);
        UpDownChanged(i, values_.Value(i));
    }
    updating_ = false;
}

void frmAdjustHLS::SliderChanged(int index, int32_t value) {
    form_->UpDownValue(index, values_.Mirrored(index, value));
}

void frmAdjustHLS::UpDownChanged(int index, int32_t value) {
    form_->Text(index, String::FromInt(value).view());
}

void frmAdjustHLS::TextChanged(int index, std::u16string_view text) {
    if (updating_) return;
    const SliderRange range = values_.Range(index);
    const double limited = std::clamp(LeadingNumber(String(text)), double{-1e6}, double{1e6});
    const int32_t number = std::clamp(RoundHalfEven(limited), range.min, range.max);
    form_->SliderValue(index, values_.Mirrored(index, number));
    values_.Value(index, number);
    ValueChanged();
}

bool frmAdjustHLS::AllowsKey(char16_t key, int32_t caret) const {
    if (key == kBackspace) return true;
    return key == u'-' ? caret == 0 : key >= u'0' && key <= u'9';
}

void frmAdjustHLS::ColourizeChanged(bool ticked) {
    values_.Colourize(ticked);
    PutInControls();
    ValueChanged();
}

void frmAdjustHLS::ValueChanged() {
    form_->StopTimer();
    form_->RepaintWheel();
    form_->StartTimer(kPause);
}

void frmAdjustHLS::TimerFired() {
    form_->Hourglass(true);
    Preview();
    form_->Hourglass(false);
    form_->StopTimer();
}

}  // namespace vxgui
