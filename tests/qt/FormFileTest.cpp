// Forms against screens: each kind of fault is told, and all of them at once.
#include "platform/qt/FormFile.h"

#include <gtest/gtest.h>

#include "platform/ChoiceControls.h"
#include "platform/ControlArray.h"
#include "platform/ListView.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"
#include "platform/Timer.h"
#include "store/Text.h"
#include "tests/qt/FormText.h"

namespace kontorwerk {
namespace {

class SmallScreen final : public Screen {
 public:
  explicit SmallScreen(Desktop& desktop) : Screen(desktop, "T") { desktop.Add(*this); }

  TextBox Straße{*this, "Straße"_t};
  CommandButton Command1{*this, "Command1"};
  ListView Suchergebnis{*this, "Suchergebnis"};
  CheckBox Wahl0{*this, "Wahl", 0};
  Timer Uhr{*this, "Uhr", 50, Timer::Start::Off};
};

class FormFileTest : public testing::Test {
 protected:
  static QString Fitting() {
    return WidgetText("QLineEdit", QStringLiteral("Straße")) + WidgetText("QPushButton", "Command1") +
           WidgetText("QTreeView", "Suchergebnis") + WidgetText("QCheckBox", "Wahl_0") +
           WidgetText("QLabel", "decoTitle") + WidgetText("QFrame", "AnyFrame");
  }

  Desktop desktop_;
  SmallScreen screen_{desktop_};
};

TEST_F(FormFileTest, FormThatFitsHasNoFault) { EXPECT_TRUE(CheckForm(screen_, FormOf(Fitting())).empty()); }

TEST_F(FormFileTest, AllFaultsAreToldAtOnce) {
  const QString form = WidgetText("QPlainTextEdit", QStringLiteral("Straße")) + WidgetText("QCheckBox", "Command1") +
                       WidgetText("QLineEdit", "Fremd") + WidgetText("QCheckBox", "Wahl_1") +
                       WidgetText("QCheckBox", "Wahl_0");
  const std::vector<std::string> expected = {
      "T: wrong kind: Command1 is a CheckBox in the form and a CommandButton in the screen",
      "T: surplus: Fremd (TextBox) has no control",
      "T: surplus: Wahl_1 (CheckBox) has no control",
      "T: missing: Suchergebnis (ListView) has no widget",
  };
  EXPECT_EQ(CheckForm(screen_, FormOf(form)), expected);
}

TEST_F(FormFileTest, DoubleNamesPicturesAndFollowedNamesAreChecked) {
  const QString form = Fitting() + WidgetText("QPushButton", "Command1") +
                       WidgetText("QLabel", "decoA", PropertyText("icon", "no-such-picture")) +
                       WidgetText("QFrame", "decoB", PropertyText("follows", "Command1|Command2"));
  const std::vector<std::string> expected = {
      "T: Command1 occurs twice",
      "T: decoration follows Command2, which is no control",
      "T: no picture no-such-picture",
  };
  EXPECT_EQ(CheckForm(screen_, FormOf(form)), expected);
}

TEST_F(FormFileTest, BrokenFormIsOneFault) {
  const std::vector<std::string> faults = CheckForm(screen_, FormFile("<ui><widget", "T.ui"));
  ASSERT_EQ(faults.size(), 1U);
  EXPECT_EQ(faults[0].substr(0, 10), "T: line 1:");
}

TEST_F(FormFileTest, ScreenWithoutFormIsAFault) {
  EXPECT_EQ(CheckForm(screen_), std::vector<std::string>{"T: there is no such form"});
}

}  // namespace
}  // namespace kontorwerk
