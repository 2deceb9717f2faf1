#pragma once

#include <QCheckBox>
#include <QDialog>
#include <QTimer>
#include <array>

#include "vxgui/platform/qt6/PixelPane.h"
#include "vxgui/platform/qt6/ValueControls.h"

class QBoxLayout;

namespace vxgui::qt6 {

/// The colour dialog. Widgets bear the names of the controls as their object names.
class AdjustDialog final : public QDialog, public forms::AdjustForm {
public:
    AdjustDialog(forms::AdjustEvents& events, const forms::AdjustCaptions& captions);
    ~AdjustDialog() override;

    void SliderRange(int index, int32_t min, int32_t max) override;
    void SliderValue(int index, int32_t value) override;
    void UpDownRange(int index, int32_t min, int32_t max) override;
    void UpDownValue(int index, int32_t value) override;
    void Text(int index, std::u16string_view text) override;
    void Ticked(forms::AdjustBox box, bool ticked) override;
    void ScaleText(std::u16string_view text) override;
    void TimingText(std::u16string_view text) override;
    void RepaintWheel() override;
    void RepaintPane(forms::Pane pane) override;
    void StartTimer(int32_t milliseconds) override;
    void StopTimer() override;
    void Hourglass(bool shown) override;
    void ShowModal() override;
    void Close() override;

protected:
    void reject() override;

private:
    const ValueControls& At(int index) const { return values_[static_cast<size_t>(index)]; }
    void MakePanes(QBoxLayout& layout);
    void MakeValues(QBoxLayout& layout, const forms::AdjustCaptions& captions);
    void MakeSide(QBoxLayout& layout, const forms::AdjustCaptions& captions);
    void MakeZoom(QBoxLayout& layout);
    void MakeButton(QBoxLayout& layout, std::u16string_view caption, const char* name,
                    forms::AdjustButton button);
    QCheckBox* MakeCheckBox(QBoxLayout& layout, std::u16string_view caption, const char* name);
    PixelPane* MakePane(forms::Pane pane, const char* name);
    void ConnectValue(int index);

    forms::AdjustEvents& events_;
    std::array<ValueControls, 3> values_{};
    PixelPane* before_ = nullptr;
    PixelPane* after_ = nullptr;
    PixelPane* wheel_ = nullptr;
    QCheckBox* colourize_ = nullptr;
    QCheckBox* preview_ = nullptr;
    QLabel* scale_ = nullptr;
    QLabel* timing_ = nullptr;
    QTimer timer_;
    bool shown_ = false;
};

}  // namespace vxgui::qt6
