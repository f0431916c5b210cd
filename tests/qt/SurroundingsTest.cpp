// Timers, waiting, boxes and the other surroundings of the windows.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "platform/Screen.h"
#include "platform/Timer.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtPlatform.h"
#include "platform/qt/QtText.h"
#include "platform/qt/QtTimers.h"
#include "store/FileSystem.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

class Uhren final : public Screen {
 public:
  explicit Uhren(Desktop& desktop) : Screen(desktop, "U") { desktop.Add(*this); }
  Timer Uhr{*this, "Uhr", 1, Timer::Start::On};
};

class SurroundingsTest : public testing::Test {
 protected:
  // Clicks the button of the box that comes up next; keeps the box's texts.
  void AnswerNextBox(const QString& caption) {
    QTimer::singleShot(0, qApp, [this, caption] {
      QWidget* box = QApplication::activeModalWidget();
      ASSERT_NE(box, nullptr);
      boxTitle_ = box->windowTitle();
      boxText_ = box->findChild<QLabel*>("decoBoxText")->text();
      for (QPushButton* button : box->findChildren<QPushButton*>()) {
        captions_.append(button->text().remove('&'));
        if (captions_.back() == caption) QTimer::singleShot(0, button, &QPushButton::click);
      }
      if (caption == "Escape") QTest::keyClick(box, Qt::Key_Escape);
    });
  }

  Desktop desktop_;
  std::unique_ptr<Disk> disk_ = MakeSystemDisk();
  FileSystemObject files_{*disk_};
  QtDesktop windows_{desktop_};
  QtPlatform platform_{windows_, files_, "/tmp\\"};
  QString boxTitle_;
  QString boxText_;
  QStringList captions_;
};

TEST_F(SurroundingsTest, BoxHasGermanButtonsAndGivesTheAnswer) {
  AnswerNextBox("Nein");
  EXPECT_EQ(platform_.Box("Wirklich löschen?\r\n<Meier & Co>"_t, "Löschen"_t, Buttons::YesNoCancel), Answer::No);
  EXPECT_EQ(boxTitle_, QStringLiteral("Löschen"));
  EXPECT_EQ(boxText_, QStringLiteral("Wirklich löschen?\n<Meier & Co>"));
  EXPECT_EQ(captions_, (QStringList{"Ja", "Nein", "Abbrechen"}));
}

TEST_F(SurroundingsTest, BoxWithoutTitleCarriesTheProgramsName) {
  AnswerNextBox("OK");
  platform_.Tell("Gespeichert");
  EXPECT_EQ(boxTitle_, QStringLiteral("Kontorwerk"));
}

TEST_F(SurroundingsTest, EscapeIsAbbrechenWhereThereIsOne) {
  AnswerNextBox("Escape");
  EXPECT_EQ(platform_.Box("Weiter?", {}, Buttons::YesNoCancel), Answer::Cancel);
  AnswerNextBox("Escape");
  EXPECT_EQ(platform_.Box("Fertig", {}, Buttons::Ok), Answer::Ok);
}

TEST_F(SurroundingsTest, TimersFireOnlyWhileTheirScreenIsLoaded) {
  const QtTimers timers(desktop_);
  Uhren screen(desktop_);
  int fired = 0;
  screen.Uhr.OnTimer = [&] {
    if (++fired == 3) screen.Unload();
  };
  screen.Load();
  EXPECT_TRUE(platform_.WaitUntil([&] { return fired == 3; }));
  QTest::qWait(20);
  EXPECT_EQ(fired, 3);
}

TEST_F(SurroundingsTest, TimerDoesNotFireIntoItsOwnHandler) {
  const QtTimers timers(desktop_);
  Uhren screen(desktop_);
  int depth = 0;
  int deepest = 0;
  int fired = 0;
  screen.Uhr.OnTimer = [&] {
    deepest = std::max(deepest, ++depth);
    ++fired;
    QTest::qWait(10);
    --depth;
  };
  screen.Load();
  EXPECT_TRUE(platform_.WaitUntil([&] { return fired == 2; }));
  screen.Unload();
  EXPECT_EQ(deepest, 1);
}

TEST_F(SurroundingsTest, WaitEndsWithFalseWhenTheProgramQuits) {
  QTimer::singleShot(0, qApp, [this] { platform_.Quit(); });
  EXPECT_FALSE(platform_.WaitUntil([] { return false; }));
}

TEST_F(SurroundingsTest, ClipboardTakesTextsOfTheProgram) {
  platform_.SetClipboard("Straße 1\r\n10115 Berlin"_t);
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Straße 1\n10115 Berlin"));
}

TEST_F(SurroundingsTest, RandomNumbersLieBetweenZeroAndOne) {
  const double first = platform_.Random();
  bool differs = false;
  for (int i = 0; i < 100; ++i) {
    const double value = platform_.Random();
    EXPECT_GE(value, 0.0);
    EXPECT_LT(value, 1.0);
    differs = differs || value != first;
  }
  EXPECT_TRUE(differs);
}

TEST_F(SurroundingsTest, ClockIsTheMachines) {
  const QDateTime before = QDateTime::currentDateTime();
  const DateTime now = platform_.Now();
  const QDateTime read(QDate(now.date.year, now.date.month, now.date.day),
                       QTime(now.time.hour, now.time.minute, now.time.second));
  EXPECT_LE(std::abs(before.secsTo(read)), 2);
}

TEST_F(SurroundingsTest, MissingFilesAreNotOpened) {
  EXPECT_FALSE(platform_.OpenFile("/no/such/file.doc"));
  platform_.PlaySound("/no/such/sound.wav");
}

}  // namespace
}  // namespace kontorwerk
