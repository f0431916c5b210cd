// Ties of fields, buttons, choices and captions at a window that is worked by hand.
#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QTest>

#include "platform/ChoiceControls.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtText.h"
#include "store/Text.h"
#include "tests/qt/FormText.h"

namespace kontorwerk {
namespace {

std::string AllBytes() {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  return bytes;
}

class Mask final : public Screen {
 public:
  explicit Mask(Desktop& desktop) : Screen(desktop, "T") { desktop.Add(*this); }
  void OnCloseRequest() override { ++closeRequests; }

  TextBox Feld{*this, "Feld"};
  TextBox Zweites{*this, "Zweites"};
  TextBox Bemerkung{*this, "Bemerkung"};
  CommandButton Command1{*this, "Command1"};
  CheckBox Check1{*this, "Check1"};
  OptionButton Option1{*this, "Option1"};
  OptionButton Option2{*this, "Option2"};
  ComboBox Combo1{*this, "Combo1"};
  Label Label1{*this, "Label1"};
  StatusBar StatusBar1{*this, "StatusBar1"};
  int closeRequests = 0;
};

class BindingTest : public testing::Test {
 protected:
  void SetUp() override {
    const QString widgets =
        WidgetText("QLineEdit", "Feld") + WidgetText("QLineEdit", "Zweites") +
        WidgetText("QPlainTextEdit", "Bemerkung") +
        WidgetText("QPushButton", "Command1", "<property name=\"text\"><string>&amp;Speichern</string></property>") +
        WidgetText("QCheckBox", "Check1") + WidgetText("QRadioButton", "Option1") +
        WidgetText("QRadioButton", "Option2") +
        WidgetText("QComboBox", "Combo1", "<property name=\"editable\"><bool>true</bool></property>") +
        WidgetText("QLabel", "Label1");
    const FormFile form = FormOf(widgets, "<widget class=\"QStatusBar\" name=\"StatusBar1\"/>");
    ASSERT_EQ(CheckForm(mask_, form), std::vector<std::string>());
    windows_.MakeWindow(mask_, form);
    mask_.Show();
    QCoreApplication::processEvents();
  }

  template <typename Widget>
  Widget* Find(const char* name) {
    return windows_.WindowOf(mask_)->Window().findChild<Widget*>(QString::fromUtf8(name));
  }

  Desktop desktop_;
  Mask mask_{desktop_};
  QtDesktop windows_{desktop_};
};

TEST_F(BindingTest, AllBytesSurviveAField) {
  const std::string bytes = AllBytes();
  mask_.Feld.SetText(bytes);
  EXPECT_EQ(FromQt(Find<QLineEdit>("Feld")->text()), bytes);
  QTest::keyClicks(Find<QLineEdit>("Feld"), "x");
  EXPECT_EQ(mask_.Feld.Text(), bytes + "x");
}

TEST_F(BindingTest, LinesOfABoxKeepProtectedBlanksAndLineEnds) {
  const std::string text =
      "eins\r\nzwei\xA0"
      "drei\r\n";
  mask_.Bemerkung.SetText(text);
  QTest::keyClicks(Find<QPlainTextEdit>("Bemerkung"), "x");
  EXPECT_EQ(mask_.Bemerkung.Text(), "x" + text);
}

TEST_F(BindingTest, TypingRaisesChangeWithEachKey) {
  std::vector<std::string> seen;
  mask_.Feld.OnChange = [&] { seen.push_back(mask_.Feld.Text()); };
  QTest::keyClicks(Find<QLineEdit>("Feld"), QStringLiteral("ab"));
  EXPECT_EQ(seen, (std::vector<std::string>{"a", "ab"}));
}

TEST_F(BindingTest, HandlerThatCorrectsTheTextHasTheLastWord) {
  mask_.Feld.OnChange = [&] { mask_.Feld.SetText(UCase(mask_.Feld.Text())); };
  QTest::keyClicks(Find<QLineEdit>("Feld"), QStringLiteral("ab"));
  EXPECT_EQ(Find<QLineEdit>("Feld")->text(), QStringLiteral("AB"));
}

TEST_F(BindingTest, ForeignCharactersAreRefusedTypedAndPasted) {
  auto* field = Find<QLineEdit>("Feld");
  field->insert(QStringLiteral("a€"));
  field->insert(QStringLiteral("Ωmega"));
  EXPECT_EQ(mask_.Feld.Text(), "a\x80");
  EXPECT_EQ(field->text(), QStringLiteral("a€"));
  EXPECT_TRUE(field->property("refused").toBool());
  auto* area = Find<QPlainTextEdit>("Bemerkung");
  QTest::keyClicks(area, QStringLiteral("b"));
  QApplication::clipboard()->setText(QStringLiteral("日本"));
  area->paste();
  EXPECT_EQ(mask_.Bemerkung.Text(), "b");
  EXPECT_TRUE(area->property("refused").toBool());
}

TEST_F(BindingTest, KeysGoThroughTheControlFirst) {
  std::vector<KeyCode> keys;
  mask_.Feld.OnKey = [&](Key& key) {
    keys.push_back(key.code);
    key.handled = key.Is(KeyCode::Enter) || key.character == 'A';
  };
  auto* field = Find<QLineEdit>("Feld");
  QTest::keyClick(field, Qt::Key_Return);
  QTest::keyClicks(field, QStringLiteral("ab"));
  EXPECT_EQ(mask_.Feld.Text(), "b");
  EXPECT_EQ(keys, (std::vector<KeyCode>{KeyCode::Enter, KeyCode::Character, KeyCode::Character}));
}

TEST_F(BindingTest, LeaveHandlerThatKeepsTheFocusKeepsTheClickAway) {
  int clicks = 0;
  mask_.Command1.OnClick = [&] { ++clicks; };
  mask_.Feld.SetFocus();
  mask_.Feld.OnLeave = [&] { mask_.Feld.SetFocus(); };
  QTest::mouseClick(Find<QPushButton>("Command1"), Qt::LeftButton);
  EXPECT_EQ(clicks, 0);
  EXPECT_EQ(desktop_.Focus(), &mask_.Feld);
  mask_.Feld.OnLeave = nullptr;
  QTest::mouseClick(Find<QPushButton>("Command1"), Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(desktop_.Focus(), &mask_.Command1);
}

TEST_F(BindingTest, MovingTheFocusByMouseRaisesLeaveAndEnterOnce) {
  std::string events;
  mask_.Feld.SetFocus();
  mask_.Feld.OnLeave = [&] { events += "leave "; };
  mask_.Zweites.OnEnter = [&] { events += "enter "; };
  QTest::mouseClick(Find<QLineEdit>("Zweites"), Qt::LeftButton);
  QTest::mouseClick(Find<QLineEdit>("Zweites"), Qt::LeftButton);
  EXPECT_EQ(events, "leave enter ");
}

TEST_F(BindingTest, FocusByProgramMovesTheWidgetsFocus) {
  mask_.Zweites.SetFocus();
  EXPECT_EQ(windows_.WindowOf(mask_)->Window().focusWidget(), Find<QLineEdit>("Zweites"));
}

TEST_F(BindingTest, DisablingTheFocusedControlRaisesNoLeave) {
  bool left = false;
  mask_.Feld.SetFocus();
  mask_.Feld.OnLeave = [&] { left = true; };
  mask_.Feld.Disable();
  QCoreApplication::processEvents();
  EXPECT_FALSE(left);
  EXPECT_FALSE(Find<QLineEdit>("Feld")->isEnabled());
}

TEST_F(BindingTest, LockedFieldTakesNoTyping) {
  mask_.Feld.SetLocked(true);
  QTest::keyClicks(Find<QLineEdit>("Feld"), QStringLiteral("a"));
  EXPECT_EQ(mask_.Feld.Text(), "");
}

TEST_F(BindingTest, TickAndOptionsFollowTheControls) {
  QTest::mouseClick(Find<QCheckBox>("Check1"), Qt::LeftButton, {}, QPoint(8, Find<QCheckBox>("Check1")->height() / 2));
  EXPECT_TRUE(mask_.Check1.Checked());
  EXPECT_TRUE(Find<QCheckBox>("Check1")->isChecked());
  Find<QRadioButton>("Option1")->click();
  Find<QRadioButton>("Option2")->click();
  EXPECT_FALSE(mask_.Option1.Value());
  EXPECT_TRUE(mask_.Option2.Value());
  EXPECT_FALSE(Find<QRadioButton>("Option1")->isChecked());
  mask_.Option1.SetValue(true);
  EXPECT_TRUE(Find<QRadioButton>("Option1")->isChecked());
  EXPECT_FALSE(Find<QRadioButton>("Option2")->isChecked());
}

TEST_F(BindingTest, ComboShowsEntriesChoiceAndFreeText) {
  mask_.Combo1.SetItems({"Herr", "Frau"});
  auto* combo = Find<QComboBox>("Combo1");
  EXPECT_EQ(combo->count(), 2);
  EXPECT_EQ(combo->currentIndex(), -1);
  mask_.Combo1.SetListIndex(1);
  EXPECT_EQ(combo->currentText(), QStringLiteral("Frau"));
  combo->lineEdit()->selectAll();
  QTest::keyClicks(combo->lineEdit(), QStringLiteral("Firma"));
  EXPECT_EQ(mask_.Combo1.Text(), "Firma");
  EXPECT_EQ(mask_.Combo1.ListIndex(), ChoiceControl::kNone);
}

TEST_F(BindingTest, CaptionsAreShownAsTheyStand) {
  EXPECT_EQ(Find<QPushButton>("Command1")->text(), QString());
  mask_.Command1.SetCaption("Speichern");
  EXPECT_EQ(Find<QPushButton>("Command1")->text(), QStringLiteral("&Speichern"));
  mask_.Command1.SetCaption("Meier & Sohn");
  EXPECT_EQ(Find<QPushButton>("Command1")->text(), QStringLiteral("Meier && Sohn"));
  mask_.Label1.SetCaption("<b>Meier</b> & Sohn");
  EXPECT_EQ(Find<QLabel>("Label1")->text(), QStringLiteral("<b>Meier</b> & Sohn"));
  EXPECT_EQ(Find<QLabel>("Label1")->textFormat(), Qt::PlainText);
}

TEST_F(BindingTest, LabelTellsItsClicksAndTakesNoFocus) {
  int clicks = 0;
  mask_.Feld.SetFocus();
  mask_.Label1.SetCaption("18*");
  mask_.Label1.OnClick = [&] { ++clicks; };
  QCoreApplication::processEvents();
  QTest::mouseClick(Find<QLabel>("Label1"), Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(desktop_.Focus(), &mask_.Feld);
}

TEST_F(BindingTest, WindowButtonAsksTheScreen) {
  QMainWindow& window = windows_.WindowOf(mask_)->Window();
  EXPECT_FALSE(window.close());
  EXPECT_EQ(mask_.closeRequests, 1);
  EXPECT_TRUE(window.isVisible());
}

TEST_F(BindingTest, PanelsOfTheStatusBarShowTheirTexts) {
  mask_.StatusBar1.SetPanel(4, "Suche beendet.");
  QStringList texts;
  for (const QLabel* label : Find<QStatusBar>("StatusBar1")->findChildren<QLabel*>())
    if (!label->isHidden()) texts.append(label->text());
  EXPECT_EQ(texts, QStringList{"Suche beendet."});
}

}  // namespace
}  // namespace kontorwerk
