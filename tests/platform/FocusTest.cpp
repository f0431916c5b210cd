#include <gtest/gtest.h>

#include "tests/platform/TestScreens.h"

namespace kontorwerk {
namespace {

using Steps = std::vector<std::string>;

class Focus : public ::testing::Test {
 protected:
  Focus() {
    desktop.Add(screen);
    desktop.Add(other);
    screen.Show();
    other.Show();
    screen.steps.clear();
  }

  Desktop desktop;
  test::TestScreen screen{desktop, "Screen"};
  test::TestScreen other{desktop, "Other"};
};

TEST_F(Focus, MoveLeavesTheOldControlAndThenEntersTheNew) {
  desktop.MoveFocus(screen.First);
  EXPECT_TRUE(desktop.MoveFocus(screen.Second));
  EXPECT_EQ(screen.steps, (Steps{"enter First", "leave First", "enter Second"}));
}

TEST_F(Focus, MoveToTheControlThatHasItRaisesNothing) {
  desktop.MoveFocus(screen.First);
  screen.steps.clear();
  EXPECT_TRUE(desktop.MoveFocus(screen.First));
  EXPECT_TRUE(screen.steps.empty());
}

TEST_F(Focus, LeaveHandlerThatMovesBackHasTheLastWord) {
  desktop.MoveFocus(screen.First);
  screen.First.OnLeave = [this] { screen.First.SetFocus(); };
  screen.steps.clear();
  EXPECT_FALSE(desktop.MoveFocus(screen.Second));
  EXPECT_EQ(desktop.Focus(), &screen.First);
  EXPECT_EQ(screen.steps, Steps{"enter First"}) << "the control that was never entered is not left";
}

TEST_F(Focus, LeaveHandlerThatMovesOnToAThirdControlHasTheLastWord) {
  desktop.MoveFocus(screen.First);
  screen.First.OnLeave = [this] { screen.Command1.SetFocus(); };
  EXPECT_FALSE(desktop.MoveFocus(screen.Second));
  EXPECT_EQ(desktop.Focus(), &screen.Command1);
}

TEST_F(Focus, EnterHandlerThatMovesOnHasTheLastWord) {
  screen.Second.OnEnter = [this] { screen.Command1.SetFocus(); };
  EXPECT_FALSE(desktop.MoveFocus(screen.Second));
  EXPECT_EQ(desktop.Focus(), &screen.Command1);
}

TEST_F(Focus, LabelsMenusAndDisabledControlsTakeNone) {
  desktop.MoveFocus(screen.First);
  screen.Second.Disable();
  EXPECT_TRUE(desktop.MoveFocus(screen.Label1));
  EXPECT_TRUE(desktop.MoveFocus(screen.Entry));
  EXPECT_TRUE(desktop.MoveFocus(screen.Second));
  EXPECT_EQ(desktop.Focus(), &screen.First);
}

TEST_F(Focus, GoingToAnotherScreenLeavesTheControl) {
  desktop.MoveFocus(screen.First);
  desktop.MoveFocus(other.First);
  EXPECT_EQ(screen.steps.back(), "leave First");
  EXPECT_EQ(desktop.ActiveScreen(), &other);
}

TEST_F(Focus, UnloadingTakesTheFocusWithoutLeaving) {
  desktop.MoveFocus(screen.First);
  screen.steps.clear();
  screen.Unload();
  EXPECT_EQ(desktop.Focus(), nullptr);
  EXPECT_EQ(screen.steps, Steps{"unload"});
  desktop.MoveFocus(other.First);
  EXPECT_EQ(screen.steps, Steps{"unload"});
}

TEST_F(Focus, SetFocusOnAHiddenScreenIsRememberedThere) {
  screen.Hide();
  screen.Second.SetFocus();
  EXPECT_EQ(screen.FocusedControl(), &screen.Second);
  EXPECT_NE(desktop.Focus(), &screen.Second);
}

TEST_F(Focus, ActiveScreenIsTheVisibleOneUsedLast) {
  EXPECT_EQ(desktop.ActiveScreen(), &other);
  desktop.MoveFocus(screen.First);
  EXPECT_EQ(desktop.ActiveScreen(), &screen);
  screen.Hide();
  EXPECT_EQ(desktop.ActiveScreen(), &other);
}

TEST_F(Focus, EnterPressesAButtonUnlessItsHandlerHasUsedTheKey) {
  desktop.PressKey(screen.Command1, *ParseKey("Enter"));
  EXPECT_EQ(screen.steps, Steps{"click Command1"});
  screen.Command1.OnKey = [](Key& key) { key.handled = true; };
  desktop.PressKey(screen.Command1, *ParseKey("Enter"));
  EXPECT_EQ(screen.steps, Steps{"click Command1"});
}

}  // namespace
}  // namespace kontorwerk
