#include "vxgui/platform/qt6/AdjustDialog.h"

#include <QApplication>

#include "vxgui/platform/qt6/QtText.h"

namespace vxgui::qt6 {

AdjustDialog::~AdjustDialog() = default;

void AdjustDialog::SliderRange(int index, int32_t min, int32_t max) {
    At(index).slider->setRange(min, max);
}
void AdjustDialog::SliderValue(int index, int32_t value) { At(index).slider->setValue(value); }
void AdjustDialog::UpDownRange(int index, int32_t min, int32_t max) {
    At(index).upDown->SetRange(min, max);
}
void AdjustDialog::UpDownValue(int index, int32_t value) { At(index).upDown->SetValue(value); }
void AdjustDialog::Text(int index, std::u16string_view text) {
    At(index).text->setText(TextOf(text));
}
void AdjustDialog::Ticked(forms::AdjustBox box, bool ticked) {
    (box == forms::AdjustBox::Colourize ? colourize_ : preview_)->setChecked(ticked);
}
void AdjustDialog::ScaleText(std::u16string_view text) { scale_->setText(TextOf(text)); }
void AdjustDialog::TimingText(std::u16string_view text) { timing_->setText(TextOf(text)); }

void AdjustDialog::RepaintWheel() { wheel_->update(); }
void AdjustDialog::RepaintPane(forms::Pane pane) {
    (pane == forms::Pane::Before ? before_ : after_)->update();
}

void AdjustDialog::StartTimer(int32_t milliseconds) { timer_.start(milliseconds); }
void AdjustDialog::StopTimer() { timer_.stop(); }

void AdjustDialog::Hourglass(bool shown) {
    if (shown) {
        QApplication::setOverrideCursor(Qt::WaitCursor);
    } else {
        QApplication::restoreOverrideCursor();
    }
}

void AdjustDialog::ShowModal() {
    adjustSize();  // settles the size of the panes, which loading asks for
    ensurePolished();
    layout()->activate();
    const QSizeF view = before_->PixelSize();
    events_.Loaded(view.width(), view.height());
    shown_ = true;
    exec();
    shown_ = false;
    events_.Unloaded();
}

void AdjustDialog::Close() { done(0); }

void AdjustDialog::reject() { events_.ButtonPressed(forms::AdjustButton::Cancel); }

}  // namespace vxgui::qt6
