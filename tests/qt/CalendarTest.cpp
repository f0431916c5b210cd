// The tie of the month calendar.
#include <gtest/gtest.h>

#include <QApplication>
#include <QTableView>
#include <QTest>

#include "platform/MonthView.h"
#include "platform/Screen.h"
#include "platform/qt/MonthCalendar.h"
#include "platform/qt/QtDesktop.h"
#include "tests/qt/FormText.h"

namespace kontorwerk {
namespace {

class Kalender final : public Screen {
 public:
  explicit Kalender(Desktop& desktop) : Screen(desktop, "T") { desktop.Add(*this); }
  void OnLoad() override { View.SetValue({2026, 11, 15}); }
  MonthView View{*this, "View"};
};

class CalendarTest : public testing::Test {
 protected:
  void SetUp() override {
    windows_.MakeWindow(screen_, FormOf(WidgetText("QCalendarWidget", "View")));
    screen_.Show();
    QCoreApplication::processEvents();
  }
  MonthCalendar& Calendar() {
    return *static_cast<MonthCalendar*>(windows_.WindowOf(screen_)->Window().findChild<QCalendarWidget*>("View"));
  }

  Desktop desktop_;
  Kalender screen_{desktop_};
  QtDesktop windows_{desktop_};
};

TEST_F(CalendarTest, ShowsTheChosenDayInGermanWeeks) {
  EXPECT_EQ(Calendar().selectedDate(), QDate(2026, 11, 15));
  EXPECT_EQ(Calendar().monthShown(), 11);
  EXPECT_EQ(Calendar().firstDayOfWeek(), Qt::Monday);
  EXPECT_EQ(Calendar().locale().dayName(1, QLocale::ShortFormat), QStringLiteral("Mo."));
}

TEST_F(CalendarTest, ChangeByProgramTurnsThePageWithoutAClick) {
  int clicks = 0;
  screen_.View.OnDateClick = [&] { ++clicks; };
  screen_.View.AddYears(1);
  EXPECT_EQ(Calendar().selectedDate(), QDate(2027, 11, 15));
  EXPECT_EQ(Calendar().yearShown(), 2027);
  EXPECT_EQ(clicks, 0);
}

TEST_F(CalendarTest, ArrowKeyChoosesTheNextDay) {
  int clicks = 0;
  screen_.View.OnDateClick = [&] { ++clicks; };
  QTest::keyClick(Calendar().findChild<QTableView*>(), Qt::Key_Right);
  EXPECT_EQ(screen_.View.Value(), (Date{2026, 11, 16}));
  EXPECT_EQ(clicks, 1);
}

TEST_F(CalendarTest, PagingTellsTheMonthAndKeepsTheDay) {
  int months = 0;
  screen_.View.OnMonthChange = [&] { ++months; };
  Calendar().showNextMonth();
  EXPECT_EQ(months, 1);
  EXPECT_EQ(screen_.View.Value(), (Date{2026, 11, 15}));
}

TEST_F(CalendarTest, BoldDaysAreAskedOfTheControl) {
  screen_.View.SetBold({2026, 11, 20});
  EXPECT_TRUE(Calendar().isBold(QDate(2026, 11, 20)));
  EXPECT_FALSE(Calendar().isBold(QDate(2026, 11, 21)));
  screen_.View.ClearBold();
  EXPECT_FALSE(Calendar().isBold(QDate(2026, 11, 20)));
}

}  // namespace
}  // namespace kontorwerk
