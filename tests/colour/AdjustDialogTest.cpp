#include <gtest/gtest.h>

#include "tests/colour/ActedForm.h"
#include "vxgui/colour/frmAdjustHLS.h"
#include "vxgui/surface/cAlphaDIBSection.h"

namespace vxgui {
namespace {

using forms::AdjustButton;
using test::ActedForm;
using test::ActedToolkit;

constexpr int kHue = 0, kSaturation = 1, kLightness = 2;

/// A surface of 40 x 30 pixels of noise, and what showing its dialog does to it.
class AdjustDialog : public testing::Test {
protected:
    AdjustDialog() {
        surface_->Create(40, 30);
        surface_->RandomiseBits();
        before_ = Bytes();
    }

    bool Show(std::function<void(ActedForm&)> whileShown) {
        ActedToolkit toolkit(std::move(whileShown));
        const test::ToolkitInForce inForce(&toolkit);
        return surface_->ShowAdjustHLS();
    }
    ByteArray Bytes() const {
        ByteArray bytes;
        surface_->ToByteArray(bytes, 0);
        return bytes;
    }
    ByteArray Adjusted(float hue, float luminance, float saturation, bool colourize) const {
        const auto copy = New<cAlphaDIBSection>();
        copy->FromByteArray(before_);
        copy->AdjustHLS(hue, luminance, saturation, colourize);
        ByteArray bytes;
        copy->ToByteArray(bytes, 0);
        return bytes;
    }

    Ref<cAlphaDIBSection> surface_ = New<cAlphaDIBSection>();
    ByteArray before_;
};

TEST_F(AdjustDialog, HasItsCaptions) {
    ActedToolkit toolkit([](ActedForm&) {});
    const test::ToolkitInForce inForce(&toolkit);
    surface_->ShowAdjustHLS();
    EXPECT_EQ(toolkit.captions.form, u"色彩调整 色调、饱和度、亮度");
    EXPECT_EQ(toolkit.captions.values[0], u"色　调");
    EXPECT_EQ(toolkit.captions.values[1], u"饱和度");
    EXPECT_EQ(toolkit.captions.values[2], u"亮　度");
    EXPECT_EQ(toolkit.captions.colourize, u"单色化");
    EXPECT_EQ(toolkit.captions.preview, u"预览");
    EXPECT_EQ(toolkit.captions.ok, u"确 定");
    EXPECT_EQ(toolkit.captions.cancel, u"取 消");
    EXPECT_EQ(toolkit.captions.reset, u"还 原");
    EXPECT_EQ(toolkit.captions.wheelSide, 150);
}

TEST_F(AdjustDialog, WithoutAToolkitIsAsIfCancelled) {
    const test::ToolkitInForce none(nullptr);
    EXPECT_FALSE(surface_->ShowAdjustHLS());
    EXPECT_EQ(Bytes(), before_);
}

TEST_F(AdjustDialog, WithAToolkitThatHasNoDisplayIsAsIfCancelled) {
    ActedToolkit toolkit([](ActedForm& form) { form.events.ButtonPressed(AdjustButton::Ok); });
    toolkit.usable = false;
    const test::ToolkitInForce inForce(&toolkit);
    EXPECT_FALSE(surface_->ShowAdjustHLS());
    EXPECT_EQ(toolkit.formsMade, 0);
}

TEST_F(AdjustDialog, OkAdjustsTheWholeSurface) {
    EXPECT_TRUE(Show([](ActedForm& form) {
        form.Type(kHue, "60");
        form.Type(kSaturation, "-20");
        form.Type(kLightness, "10");
        form.events.ButtonPressed(AdjustButton::Ok);
        EXPECT_TRUE(form.closed);
    }));
    EXPECT_EQ(Bytes(), Adjusted(60, 10, -20, false));
}

TEST_F(AdjustDialog, CancelBringsThePixelsBack) {
    EXPECT_FALSE(Show([](ActedForm& form) {
        form.Ticked(forms::AdjustBox::Preview, true);
        form.Type(kHue, "60");
        form.events.TimerFired();
        form.events.ButtonPressed(AdjustButton::Cancel);
    }));
    EXPECT_EQ(Bytes(), before_);
}

TEST_F(AdjustDialog, AMinusAloneIsNought) {
    Show([](ActedForm& form) {
        form.Type(kSaturation, "40");
        form.Type(kSaturation, "-");
        EXPECT_EQ(form.sliders[kSaturation].value, 0);
    });
}

TEST_F(AdjustDialog, TextAboveTheMaximumIsCutAndTheBoxKeepsTheCutNumber) {
    Show([](ActedForm& form) {
        form.Type(kHue, "500");
        EXPECT_EQ(form.texts[kHue], "180");
        EXPECT_EQ(form.sliders[kHue].value, 180);
        form.Type(kHue, "-500");
        EXPECT_EQ(form.texts[kHue], "-180");
    });
}

TEST_F(AdjustDialog, TextOfNoNumberIsNought) {
    Show([](ActedForm& form) {
        form.Type(kLightness, "30");
        form.Type(kLightness, "abc");
        EXPECT_EQ(form.sliders[kLightness].value, 0);
        form.Type(kLightness, "30");
        form.Type(kLightness, "");
        EXPECT_EQ(form.sliders[kLightness].value, 0);
    });
}

TEST_F(AdjustDialog, TheNumberOfATextIsRoundedHalvesToEven) {
    Show([](ActedForm& form) {
        form.Type(kHue, "12.5x");
        EXPECT_EQ(form.texts[kHue], "12");
        form.Type(kHue, "13.5");
        EXPECT_EQ(form.texts[kHue], "14");
    });
}

struct SliderRow {
    bool colourize;
    int index;
    int32_t min, max, number, place;
};

class AdjustSliders : public AdjustDialog, public testing::WithParamInterface<SliderRow> {};

TEST_P(AdjustSliders, StandUpsideDown) {
    const SliderRow row = GetParam();
    Show([row](ActedForm& form) {
        form.Ticked(forms::AdjustBox::Colourize, row.colourize);
        const size_t i = static_cast<size_t>(row.index);
        EXPECT_EQ(form.sliders[i].min, row.min);
        EXPECT_EQ(form.sliders[i].max, row.max);
        EXPECT_EQ(form.upDowns[i].min, row.min);
        EXPECT_EQ(form.upDowns[i].max, row.max);
        form.Type(row.index, String::FromInt(row.number));
        EXPECT_EQ(form.sliders[i].value, row.place);
        EXPECT_EQ(form.upDowns[i].value, row.number);
        // And from the slider to the number.
        form.SliderValue(row.index, row.min);
        form.SliderValue(row.index, row.place);
        EXPECT_EQ(form.texts[i], String::FromInt(row.number));
    });
}

INSTANTIATE_TEST_SUITE_P(
    Rows, AdjustSliders,
    testing::Values(SliderRow{false, 0, -180, 180, 35, 35}, SliderRow{false, 1, -100, 100, 35, -35},
                    SliderRow{false, 2, -100, 100, 35, -35}, SliderRow{true, 0, 0, 360, 350, 350},
                    SliderRow{true, 1, 0, 100, 35, 65}, SliderRow{true, 1, 0, 100, 100, 0},
                    SliderRow{true, 2, -100, 100, -35, 35}));

TEST_F(AdjustDialog, ASaturationOfNoughtPutsTheColourizeSliderAtAHundred) {
    Show([](ActedForm& form) {
        form.Ticked(forms::AdjustBox::Colourize, true);
        EXPECT_EQ(form.sliders[kSaturation].value, 100);
        EXPECT_EQ(form.texts[kSaturation], "0");
    });
}

TEST_F(AdjustDialog, AnUpDownControlMovesTheSlider) {
    Show([](ActedForm& form) {
        form.UpDownValue(kLightness, 7);
        EXPECT_EQ(form.texts[kLightness], "7");
        EXPECT_EQ(form.sliders[kLightness].value, -7);
    });
}

TEST_F(AdjustDialog, EachModeKeepsItsOwnNumbers) {
    Show([](ActedForm& form) {
        form.Type(kSaturation, "-30");
        form.Ticked(forms::AdjustBox::Colourize, true);
        EXPECT_EQ(form.texts[kSaturation], "0");
        form.Type(kSaturation, "70");  // the same place of the slider as -30 in the other mode
        form.Type(kHue, "300");
        form.Ticked(forms::AdjustBox::Colourize, false);
        EXPECT_EQ(form.texts[kSaturation], "-30");
        EXPECT_EQ(form.texts[kHue], "0");
        form.Ticked(forms::AdjustBox::Colourize, true);
        EXPECT_EQ(form.texts[kSaturation], "70");
        EXPECT_EQ(form.texts[kHue], "300");
    });
}

TEST_F(AdjustDialog, ResetLeavesTheOtherMode) {
    Show([](ActedForm& form) {
        form.Type(kHue, "20");
        form.Ticked(forms::AdjustBox::Colourize, true);
        form.Type(kHue, "300");
        form.events.ButtonPressed(AdjustButton::Reset);
        EXPECT_EQ(form.texts[kHue], "0");
        EXPECT_FALSE(form.closed);
        form.Ticked(forms::AdjustBox::Colourize, false);
        EXPECT_EQ(form.texts[kHue], "20");
    });
}

TEST_F(AdjustDialog, NumbersStayForTheNextTime) {
    Show([](ActedForm& form) { form.Type(kHue, "77"); });
    Show([](ActedForm& form) {
        EXPECT_EQ(form.texts[kHue], "77");
        form.Ticked(forms::AdjustBox::Colourize, true);
        form.Ticked(forms::AdjustBox::Preview, true);
    });
    Show([](ActedForm& form) {
        EXPECT_TRUE(form.colourize);
        EXPECT_TRUE(form.preview);
        EXPECT_EQ(form.sliders[kHue].max, 360);
    });
}

TEST_F(AdjustDialog, KeysOtherThanNumbersAreDropped) {
    Show([](ActedForm& form) {
        EXPECT_TRUE(form.events.AllowsKey(8, 3));
        EXPECT_TRUE(form.events.AllowsKey(u'-', 0));
        EXPECT_FALSE(form.events.AllowsKey(u'-', 1));
        for (char16_t key = 0; key < 256; ++key) {
            if (key == 8 || key == u'-') continue;
            EXPECT_EQ(form.events.AllowsKey(key, 0), key >= u'0' && key <= u'9') << int{key};
        }
    });
}

TEST_F(AdjustDialog, AChangeStartsTheClockAgainAndRepaintsTheWheel) {
    Show([this](ActedForm& form) {
        EXPECT_EQ(form.timer, 0);
        const int repaints = form.wheelRepaints;
        form.Type(kHue, "5");
        EXPECT_EQ(form.timer, 500);
        EXPECT_GT(form.wheelRepaints, repaints);
        EXPECT_EQ(Bytes(), before_);  // nothing yet
        form.events.TimerFired();
        EXPECT_EQ(form.timer, 0);
        EXPECT_EQ(form.hourglass, (std::vector<bool>{true, false}));
        EXPECT_NE(Bytes(), before_);
        EXPECT_NE(form.timing, "");
    });
}

TEST_F(AdjustDialog, AnUntickedPreviewAdjustsTheViewAlone) {
    Show([this](ActedForm& form) {
        form.Type(kLightness, "100");
        form.events.TimerFired();
        // The view shows 20 x 10 pixels, and the last row and column are inside.
        EXPECT_EQ(surface_->GetPixel(0, 0) & 0xFFFFFF, 0xFFFFFF);
        EXPECT_EQ(surface_->GetPixel(20, 10) & 0xFFFFFF, 0xFFFFFF);
        const auto untouched = New<cAlphaDIBSection>();
        untouched->FromByteArray(before_);
        EXPECT_EQ(surface_->GetPixel(21, 0), untouched->GetPixel(21, 0));
        EXPECT_EQ(surface_->GetPixel(0, 11), untouched->GetPixel(0, 11));
    });
}

TEST_F(AdjustDialog, TickingThePreviewAdjustsAllAtOnceAndTellsSo) {
    Show([this](ActedForm& form) {
        int told = 0;
        const Subscription listener =
            surface_->PreviewAdjust.Subscribe([&](int32_t, int32_t, bool&) { ++told; });
        form.Type(kLightness, "100");
        form.Ticked(forms::AdjustBox::Preview, true);
        EXPECT_EQ(Bytes(), Adjusted(0, 100, 0, false));
        EXPECT_EQ(told, 1);
        form.repaints.clear();
        form.Ticked(forms::AdjustBox::Preview, false);
        EXPECT_TRUE(form.repaints.empty());
    });
}

TEST_F(AdjustDialog, EachPreviewStartsFromTheSnapshot) {
    Show([this](ActedForm& form) {
        form.Ticked(forms::AdjustBox::Preview, true);
        form.Type(kHue, "60");
        form.events.TimerFired();
        form.events.TimerFired();
        EXPECT_EQ(Bytes(), Adjusted(60, 0, 0, false));
    });
}

TEST_F(AdjustDialog, ADragFollowsTheMouseWhateverTheZoom) {
    Show([this](ActedForm& form) {
        form.events.ZoomDown();  // half a pixel for each of the view's
        form.events.MousePressed(10, 10);
        form.events.MouseMoved(7, 8);
        form.events.MouseReleased(7, 8);
        form.events.MouseMoved(0, 0);  // no drag any more
        uint32_t shown[20 * 10];
        form.events.PaintPane(forms::Pane::Before, {shown, 80, 20, 10});
        EXPECT_EQ(shown[0] & 0xFFFFFF, static_cast<uint32_t>(surface_->GetPixel(3, 2)) & 0xFFFFFF);
    });
}

TEST_F(AdjustDialog, ZoomStopsAtBothEnds) {
    Show([](ActedForm& form) {
        EXPECT_EQ(form.scale, "1:1");
        const char* const up[] = {"2:1", "4:1", "8:1", "8:1"};
        for (const char* text : up) {
            form.events.ZoomUp();
            EXPECT_EQ(form.scale, text);
        }
        const char* const down[] = {"4:1", "2:1", "1:1", "1:2", "1:4", "1:8", "1:8"};
        for (const char* text : down) {
            form.events.ZoomDown();
            EXPECT_EQ(form.scale, text);
        }
    });
}

TEST_F(AdjustDialog, ZoomRepaintsBothPanes) {
    Show([](ActedForm& form) {
        form.Ticked(forms::AdjustBox::Preview, true);
        form.repaints.clear();
        form.events.ZoomUp();
        EXPECT_EQ(form.repaints, (std::vector{forms::Pane::Before, forms::Pane::After}));
    });
}

TEST_F(AdjustDialog, PaintsBothPanesFromThePlaceShown) {
    Show([this](ActedForm& form) {
        form.Ticked(forms::AdjustBox::Preview, true);
        form.Type(kLightness, "100");
        form.events.TimerFired();
        uint32_t pane[20 * 10];
        form.events.PaintPane(forms::Pane::After, {pane, 80, 20, 10});
        for (const uint32_t pixel : pane) EXPECT_EQ(pixel & 0xFFFFFF, 0xFFFFFFu);
        const auto untouched = New<cAlphaDIBSection>();
        untouched->FromByteArray(before_);
        form.events.PaintPane(forms::Pane::Before, {pane, 80, 20, 10});
        EXPECT_EQ(pane[5 * 20 + 7] & 0xFFFFFF,
                  static_cast<uint32_t>(untouched->GetPixel(7, 5)) & 0xFFFFFF);
    });
}

TEST_F(AdjustDialog, LongAdjustmentsHandleWhatWaitsForTheWindows) {
    ActedToolkit toolkit([](ActedForm&) {});
    const test::ToolkitInForce inForce(&toolkit);
    surface_->AdjustHLS(10, 0, 0, false, 2);
    EXPECT_EQ(toolkit.pumps, 30);
    surface_->AdjustHLS(10, 0, 0, false, 1);
    EXPECT_EQ(toolkit.pumps, 30);
}

TEST_F(AdjustDialog, AnEmptySurfaceHasNothingToShow) {
    surface_->ClearUp();
    EXPECT_TRUE(Show([](ActedForm& form) {
        uint32_t pane[4] = {1, 1, 1, 1};
        form.events.PaintPane(forms::Pane::Before, {pane, 8, 2, 2});
        form.events.PaintPane(forms::Pane::After, {pane, 8, 2, 2});
        EXPECT_EQ(pane[3], 1u);
        form.events.TimerFired();
        form.events.ButtonPressed(AdjustButton::Ok);
    }));
}

}  // namespace
}  // namespace vxgui
