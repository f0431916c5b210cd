#include <gtest/gtest.h>

#include "tests/platform/TestScreens.h"

namespace kontorwerk {
namespace {

class ScreenLife : public ::testing::Test {
 protected:
  ScreenLife() { desktop.Add(screen); }

  Desktop desktop;
  test::TestScreen screen{desktop, "Screen"};
};

TEST_F(ScreenLife, ShowLoadsOnce) {
  screen.Show();
  screen.Show();
  EXPECT_EQ(screen.steps, std::vector<std::string>{"load"});
  EXPECT_TRUE(screen.Visible());
}

TEST_F(ScreenLife, ValuesSurviveHidingAndUnloadingButNotTheNextLoad) {
  screen.Show();
  screen.First.SetText("Meier");
  screen.Hide();
  EXPECT_EQ(screen.First.Text(), "Meier");
  screen.Unload();
  EXPECT_EQ(screen.First.Text(), "Meier");
  screen.Load();
  EXPECT_EQ(screen.First.Text(), "");
}

TEST_F(ScreenLife, UnloadStopsTimers) {
  screen.Show();
  screen.Beat.SetRunning(true);
  screen.Unload();
  EXPECT_FALSE(screen.Beat.Running());
}

TEST_F(ScreenLife, ControlsAreFoundByNameAndIndex) {
  EXPECT_EQ(screen.Find("Straße"_t), &screen.Straße);
  EXPECT_EQ(screen.Find("LGNr", 2), &screen.LGNr[2]);
  EXPECT_EQ(screen.Find("LGNr", 3), nullptr);
  EXPECT_EQ(screen.Find("LGNr"), nullptr);
  EXPECT_TRUE(screen.IsArray("LGNr"));
}

TEST_F(ScreenLife, ArraysGrowAndShrink) {
  screen.LGNr[0].SetText("#00001");
  screen.LGNr.Resize(5, [](TextBox&, int) {});
  EXPECT_EQ(screen.LGNr.Count(), 5);
  EXPECT_EQ(screen.LGNr[0].Text(), "#00001");
  screen.LGNr.Resize(1, [](TextBox&, int) {});
  EXPECT_EQ(screen.Find("LGNr", 1), nullptr);
}

TEST_F(ScreenLife, ProgramRaisesChangeOnlyForAnotherText) {
  screen.Second.SetText("a");
  screen.Second.SetText("a");
  EXPECT_EQ(screen.steps, std::vector<std::string>{"change Second"});
}

TEST_F(ScreenLife, TypingTheSameTextRaisesChange) {
  screen.Second.UserText("");
  EXPECT_EQ(screen.steps, std::vector<std::string>{"change Second"});
}

TEST_F(ScreenLife, OptionButtonsOfAGroupExcludeEachOther) {
  screen.Netto.SetValue(true);
  screen.Brutto.UserChoose();
  EXPECT_FALSE(screen.Netto.Value());
  EXPECT_TRUE(screen.Brutto.Value());
}

TEST_F(ScreenLife, TickBoxRaisesClickOnlyForTheUser) {
  int clicks = 0;
  screen.Check1.OnClick = [&] { ++clicks; };
  screen.Check1.SetChecked(true);
  EXPECT_EQ(clicks, 0);
  screen.Check1.UserToggle();
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(screen.Check1.Value(), 0);
}

TEST_F(ScreenLife, ComboChoosesByIndexAndByText) {
  screen.Combo.SetItems({"eins", "zwei"});
  screen.Combo.SetListIndex(1);
  EXPECT_EQ(screen.Combo.Text(), "zwei");
  screen.Combo.SetText("eins");
  EXPECT_EQ(screen.Combo.ListIndex(), 0);
  screen.Combo.SetListIndex(7);
  EXPECT_EQ(screen.Combo.ListIndex(), -1);
  screen.Combo.SetListIndex(1);
  screen.Combo.RemoveItem(0);
  EXPECT_EQ(screen.Combo.ListIndex(), 0);
  EXPECT_EQ(screen.Combo.Text(), "zwei");
}

TEST_F(ScreenLife, ListSortsAsTextAndTurnsBetweenTheDirections) {
  screen.List.AddRow({"b", "1"});
  screen.List.AddRow({"A", "2"});
  screen.List.AddRow({"ä"_t, "3"});
  screen.List.Select(1);
  screen.List.ToggleSort(1);
  EXPECT_EQ(screen.List.Cell(1, 1), "A");
  EXPECT_EQ(screen.List.Cell(3, 1), "b");
  EXPECT_EQ(screen.List.Selected(), 3);
  screen.List.ToggleSort(1);
  EXPECT_EQ(screen.List.Cell(1, 1), "b");
  screen.List.ToggleSort(1);
  EXPECT_EQ(screen.List.Cell(1, 1), "A");
}

TEST_F(ScreenLife, ArrowKeysMoveTheSelectionAsClicksDo) {
  int selects = 0;
  screen.List.OnSelect = [&] { ++selects; };
  screen.List.AddRow({"a"});
  screen.List.AddRow({"b"});
  desktop.PressKey(screen.List, *ParseKey("Down"));
  desktop.PressKey(screen.List, *ParseKey("Down"));
  desktop.PressKey(screen.List, *ParseKey("Down"));
  EXPECT_EQ(screen.List.Selected(), 2);
  EXPECT_EQ(selects, 2) << "at the end a further key changes nothing";
}

TEST_F(ScreenLife, CalendarTurnsTheLeapDayIntoThe28th) {
  screen.Calendar.SetValue({2024, 2, 29});
  screen.Calendar.AddYears(1);
  EXPECT_EQ(DateText(screen.Calendar.Value()), "28.02.2025");
}

TEST_F(ScreenLife, StatusBarKeepsFourPanels) {
  screen.StatusBar1.SetPanel(4, "fertig");
  screen.StatusBar1.SetPanel(5, "nirgends");
  EXPECT_EQ(screen.StatusBar1.Panel(4), "fertig");
  EXPECT_EQ(screen.StatusBar1.Panel(5), "");
  EXPECT_EQ(screen.StatusBar1.Panel(0), "");
}

TEST(KeyNames, AreReadWithTheirModifiers) {
  const auto key = ParseKey("Ctrl+Shift+F12");
  ASSERT_TRUE(key);
  EXPECT_EQ(key->code, KeyCode::F12);
  EXPECT_TRUE(key->ctrl && key->shift && !key->alt);
  EXPECT_EQ(ParseKey("a")->character, 'A');
  EXPECT_FALSE(ParseKey("F13"));
  EXPECT_FALSE(ParseKey("Ctrl+"));
  EXPECT_FALSE(ParseKey("enter"));
}

}  // namespace
}  // namespace kontorwerk
