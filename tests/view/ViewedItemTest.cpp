#include "tools/view/ViewedItem.h"

#include <gtest/gtest.h>

#include "vxgui/theme/ThemeEnums.h"

namespace vxgui::view {
namespace {

class Control : public testing::Test {
protected:
    ViewedItem control;
};

TEST_F(Control, IsNormalUntilSomethingHappens) { EXPECT_EQ(control.State(), E_ItemStateNormal); }

TEST_F(Control, FollowsTheMouseOverItAndAway) {
    control.Hover(true);
    EXPECT_EQ(control.State(), E_ItemStateMouseOver);
    control.Hover(false);
    EXPECT_EQ(control.State(), E_ItemStateNormal);
}

TEST_F(Control, IsPressedOnlyWhileTheMouseIsOnIt) {
    control.Hover(true);
    control.Press();
    EXPECT_EQ(control.State(), E_ItemStatePressed);
    control.Hover(false);
    EXPECT_EQ(control.State(), E_ItemStateNormal);
    control.Hover(true);
    EXPECT_EQ(control.State(), E_ItemStatePressed);
    control.Release();
    EXPECT_EQ(control.State(), E_ItemStateMouseOver);
}

TEST_F(Control, IsNotPressedByAButtonThatWentDownBesideIt) {
    control.Press();
    control.Hover(true);
    EXPECT_EQ(control.State(), E_ItemStateMouseOver);
}

TEST_F(Control, WithTheFocusHasStatesOfItsOwn) {
    control.Focus(true);
    EXPECT_EQ(control.State(), E_ItemStateFocus);
    control.Hover(true);
    EXPECT_EQ(control.State(), E_ItemStateFocusMouseOver);
    control.Press();
    EXPECT_EQ(control.State(), E_ItemStateFocusPressed);
}

TEST_F(Control, IsPressedByTheSpaceBarWhereverTheMouseIs) {
    control.PressByKey();
    EXPECT_EQ(control.State(), E_ItemStateNormal);  // without the focus
    control.Focus(true);
    control.PressByKey();
    EXPECT_EQ(control.State(), E_ItemStateFocusPressed);
    control.ReleaseByKey();
    EXPECT_EQ(control.State(), E_ItemStateFocus);
}

TEST_F(Control, ThatLosesTheFocusLetsGoOfTheSpaceBar) {
    control.Focus(true);
    control.PressByKey();
    control.Focus(false);
    EXPECT_EQ(control.State(), E_ItemStateNormal);
    control.Focus(true);
    EXPECT_EQ(control.State(), E_ItemStateFocus);
}

TEST_F(Control, OutOfUseShowsNothingElseAndForgetsNothing) {
    control.Hover(true);
    control.Focus(true);
    control.Enable(false);
    EXPECT_EQ(control.State(), E_ItemStateDisabled);
    control.Enable(true);
    EXPECT_EQ(control.State(), E_ItemStateFocusMouseOver);
}

TEST_F(Control, IsTheDefaultWhereNeitherMouseNorFocusIs) {
    control.MakeDefault(true);
    EXPECT_EQ(control.State(), E_ItemStateDefault);
    control.Hover(true);
    EXPECT_EQ(control.State(), E_ItemStateMouseOver);
    control.Hover(false);
    control.Focus(true);
    EXPECT_EQ(control.State(), E_ItemStateFocus);
}

TEST_F(Control, KeepsAStateThatIsHeld) {
    control.Hold(E_ItemStateGroup);
    control.Hover(true);
    control.Press();
    EXPECT_EQ(control.State(), E_ItemStateGroup);
    EXPECT_TRUE(control.IsHeld());
    control.Hold({});
    EXPECT_EQ(control.State(), E_ItemStatePressed);
}

}  // namespace
}  // namespace vxgui::view
