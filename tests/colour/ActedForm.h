#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <vector>

#include "vxgui/base/String.h"
#include "vxgui/platform/forms.h"

namespace vxgui::test {

/// A form of the colour dialog whose controls are numbers, whose clock stands until it is told,
/// and which does while it is "shown" what a test says.
class ActedForm final : public forms::AdjustForm {
public:
    struct Slider {
        int32_t min = 0, max = 0, value = 0;
    };

    explicit ActedForm(forms::AdjustEvents& events) : events(events) {}

    void SliderRange(int index, int32_t min, int32_t max) override {
        sliders[At(index)].min = min;
        sliders[At(index)].max = max;
        SliderValue(index, sliders[At(index)].value);
    }
    void SliderValue(int index, int32_t value) override {
        Slider& slider = sliders[At(index)];
        if (Set(slider.value, std::clamp(value, slider.min, slider.max))) {
            events.SliderChanged(index, slider.value);
        }
    }
    void UpDownRange(int index, int32_t min, int32_t max) override {
        upDowns[At(index)].min = min;
        upDowns[At(index)].max = max;
        UpDownValue(index, upDowns[At(index)].value);
    }
    void UpDownValue(int index, int32_t value) override {
        Slider& upDown = upDowns[At(index)];
        if (Set(upDown.value, std::clamp(value, upDown.min, upDown.max))) {
            events.UpDownChanged(index, upDown.value);
        }
    }
    void Text(int index, std::u16string_view text) override {
        if (Set(texts[At(index)], String(text))) events.TextChanged(index, text);
    }
    void Ticked(forms::AdjustBox box, bool ticked) override {
        if (box == forms::AdjustBox::Colourize && Set(colourize, ticked)) {
            events.ColourizeChanged(ticked);
        }
        if (box == forms::AdjustBox::Preview && Set(preview, ticked)) {
            events.PreviewChanged(ticked);
        }
    }
    void ScaleText(std::u16string_view text) override { scale = text; }
    void TimingText(std::u16string_view text) override { timing = text; }
    void RepaintWheel() override { ++wheelRepaints; }
    void RepaintPane(forms::Pane pane) override { repaints.push_back(pane); }
    void StartTimer(int32_t milliseconds) override {
        timer = milliseconds;
        ++timerStarts;
    }
    void StopTimer() override { timer = 0; }
    void Hourglass(bool shown) override { hourglass.push_back(shown); }
    void ShowModal() override {
        events.Loaded(viewWidth, viewHeight);
        whileShown(*this);
        events.Unloaded();
    }
    void Close() override { closed = true; }

    /// As when a user replaces the text.
    void Type(int index, const String& text) { Text(index, text.view()); }

    forms::AdjustEvents& events;
    std::function<void(ActedForm&)> whileShown = [](ActedForm&) {};
    double viewWidth = 20, viewHeight = 10;
    std::array<Slider, 3> sliders, upDowns;
    std::array<String, 3> texts;
    String scale, timing;
    bool colourize = false, preview = false;
    int wheelRepaints = 0;
    int timerStarts = 0;
    int32_t timer = 0;  ///< milliseconds to go; 0 when off
    std::vector<forms::Pane> repaints;
    std::vector<bool> hourglass;
    bool closed = false;

private:
    static size_t At(int index) { return static_cast<size_t>(index); }
    template <class T>
    static bool Set(T& field, const T& value) {
        if (field == value) return false;
        field = value;
        return true;
    }
};

/// A toolkit of acted forms.
class ActedToolkit final : public forms::Toolkit {
public:
    explicit ActedToolkit(std::function<void(ActedForm&)> whileShown)
        : whileShown_(std::move(whileShown)) {}

    bool IsUsable(std::string* reason) override {
        if (!usable) *reason = "there is no display";
        return usable;
    }
    std::unique_ptr<forms::AdjustForm> CreateAdjustForm(
        forms::AdjustEvents& events, const forms::AdjustCaptions& given) override {
        auto form = std::make_unique<ActedForm>(events);
        form->whileShown = whileShown_;
        captions = given;
        ++formsMade;
        return form;
    }
    bool OpenFile(const forms::OpenFileQuestion&, forms::OpenFileAnswer*) override { return false; }
    int32_t MessageBox(std::u16string_view, std::u16string_view, uint32_t) override { return 1; }
    void PumpEvents() override { ++pumps; }

    bool usable = true;
    int formsMade = 0;
    int pumps = 0;
    forms::AdjustCaptions captions{};

private:
    std::function<void(ActedForm&)> whileShown_;
};

/// Puts a toolkit in force for the length of a scope.
class ToolkitInForce {
public:
    explicit ToolkitInForce(forms::Toolkit* toolkit) { forms::SetToolkit(toolkit); }
    ~ToolkitInForce() { forms::SetToolkit(nullptr); }
    ToolkitInForce(const ToolkitInForce&) = delete;
    ToolkitInForce& operator=(const ToolkitInForce&) = delete;
};

}  // namespace vxgui::test
