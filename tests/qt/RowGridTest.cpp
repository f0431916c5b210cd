// Rows of growing arrays over a fixed number of widgets.
#include "platform/qt/RowGrid.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QScrollBar>
#include <QTest>

#include "platform/ChoiceControls.h"
#include "platform/ControlArray.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtText.h"
#include "tests/qt/FormText.h"

namespace kontorwerk {
namespace {

class Positionen final : public Screen {
 public:
  explicit Positionen(Desktop& desktop) : Screen(desktop, "T") { desktop.Add(*this); }
  void SetRows(int count) {
    Pos.Resize(count, [](Label& label, int row) { label.SetCaption(std::to_string(row + 1)); });
    B.Resize(count, [this](TextBox& field, int row) { field.OnChange = [this, row] { changed = row; }; });
    VScroll1.SetRange(0, count - 14);
  }
  void OnWheel(int notches) override { VScroll1.SetValue(VScroll1.Value() - 3 * notches); }

  ControlArray<Label> Pos{*this, "Pos"};
  ControlArray<TextBox> B{*this, "B"};
  ScrollBar VScroll1{*this, "VScroll1"};
  int changed = -1;
};

class RowGridTest : public testing::Test {
 protected:
  void SetUp() override {
    const QString row =
        QStringLiteral(
            "<item><widget class=\"QWidget\" name=\"decoRow\">"
            "<property name=\"rowTemplate\" stdset=\"0\"><bool>true</bool></property>"
            "<layout class=\"QHBoxLayout\" name=\"decoRowLayout\" stretch=\"0,1\">%1%2</layout></widget></item>")
            .arg(WidgetText("QLabel", "Pos"), WidgetText("QLineEdit", "B"));
    const FormFile form = FormOf(row + WidgetText("QScrollBar", "VScroll1"));
    positions_.SetRows(17);
    ASSERT_EQ(CheckForm(positions_, form), std::vector<std::string>());
    windows_.MakeWindow(positions_, form);
    positions_.Show();
    windows_.Settle();
  }

  QList<QLineEdit*> Fields() { return windows_.WindowOf(positions_)->Window().findChildren<QLineEdit*>("B"); }

  Desktop desktop_;
  Positionen positions_{desktop_};
  QtDesktop windows_{desktop_};
};

TEST_F(RowGridTest, FourteenRowsShowTheElementsFromTheScrollValueOn) {
  ASSERT_EQ(Fields().size(), 14);
  positions_.B[3].SetText("vierte");
  EXPECT_EQ(Fields()[3]->text(), QStringLiteral("vierte"));
  positions_.VScroll1.SetValue(3);
  EXPECT_EQ(Fields()[0]->text(), QStringLiteral("vierte"));
  EXPECT_EQ(Fields()[3]->text(), QString());
}

TEST_F(RowGridTest, TypingReachesTheElementBehindTheRow) {
  positions_.VScroll1.SetValue(2);
  QTest::keyClicks(Fields()[1], QStringLiteral("x"));
  EXPECT_EQ(positions_.B[3].Text(), "x");
  EXPECT_EQ(positions_.changed, 3);
}

TEST_F(RowGridTest, ManyRowsNeedNoMoreWidgets) {
  positions_.SetRows(1700);
  windows_.Settle();
  EXPECT_EQ(Fields().size(), 14);
  positions_.VScroll1.SetValue(1686);
  positions_.B[1699].SetText("letzte");
  EXPECT_EQ(Fields()[13]->text(), QStringLiteral("letzte"));
}

TEST_F(RowGridTest, RowsThatAreGoneAreNotShown) {
  positions_.VScroll1.SetValue(3);
  positions_.SetRows(5);
  windows_.Settle();
  EXPECT_FALSE(Fields()[0]->isHidden());
  EXPECT_TRUE(Fields()[5]->isHidden());
  QTest::keyClicks(Fields()[0], QStringLiteral("a"));
  EXPECT_EQ(positions_.B[0].Text(), "a");
}

TEST_F(RowGridTest, FocusOnARowOutOfViewBringsItInWithoutMovingTheScrollBar) {
  positions_.B[16].SetFocus();
  Binding* binding = windows_.WindowOf(positions_)->BindingOf(positions_.B[16]);
  ASSERT_NE(binding, nullptr);
  EXPECT_EQ(windows_.WindowOf(positions_)->Window().focusWidget(), binding->Widget());
  EXPECT_EQ(positions_.VScroll1.Value(), 0);
}

TEST_F(RowGridTest, TypingGoesToTheFocusedRowAfterItWasScrolledAway) {
  positions_.B[0].SetFocus();
  positions_.VScroll1.SetValue(3);
  EXPECT_EQ(windows_.WindowOf(positions_)->BindingOf(positions_.B[0]), nullptr);
  QTest::keyClicks(&windows_.WindowOf(positions_)->Window(), QStringLiteral("z"));
  EXPECT_EQ(positions_.B[0].Text(), "z");
  EXPECT_EQ(positions_.B[3].Text(), "");
}

TEST_F(RowGridTest, WheelIsTheScreensDecision) {
  const QPointF point(2, 2);
  QWidget& window = windows_.WindowOf(positions_)->Window();
  QWheelEvent event(point, window.mapToGlobal(point), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QApplication::sendEvent(&window, &event);
  EXPECT_EQ(positions_.VScroll1.Value(), 3);
}

}  // namespace
}  // namespace kontorwerk
