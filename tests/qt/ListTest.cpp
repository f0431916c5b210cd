// The tie of lists with columns: rows by the hundred thousand, clicks, ticks, keys, headers.
#include <gtest/gtest.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QHeaderView>
#include <QTest>

#include "platform/ListView.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"
#include "platform/qt/QtDesktop.h"
#include "platform/qt/QtText.h"
#include "platform/qt/RowsView.h"
#include "store/Text.h"
#include "tests/qt/FormText.h"

namespace kontorwerk {
namespace {

class Suche final : public Screen {
 public:
  explicit Suche(Desktop& desktop) : Screen(desktop, "T") { desktop.Add(*this); }
  void OnLoad() override {
    Liste.SetColumns({{"Nr.", false}, {"Zeile", true}, {"Name", false}});
    Liste.SetEmptyText("nichts gefunden");
  }
  ListView Liste{*this, "Liste"};
};

class ListTest : public testing::Test {
 protected:
  void SetUp() override {
    windows_.MakeWindow(suche_, FormOf(WidgetText("QTreeView", "Liste")));
    suche_.Show();
    Wait();
  }

  void Wait() { QCoreApplication::processEvents(); }
  RowsView& View() {
    return *static_cast<RowsView*>(windows_.WindowOf(suche_)->Window().findChild<QTreeView*>("Liste"));
  }
  QString Shown(int row, int column) { return View().model()->index(row, column).data().toString(); }

  Desktop desktop_;
  Suche suche_{desktop_};
  QtDesktop windows_{desktop_};
};

TEST_F(ListTest, HiddenColumnsAreNotShown) {
  suche_.Liste.AddRow({"1", "verborgen", "Müller"_t});
  Wait();
  EXPECT_EQ(View().model()->columnCount(), 2);
  EXPECT_EQ(Shown(0, 1), QStringLiteral("Müller"));
  EXPECT_EQ(View().model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Name"));
}

TEST_F(ListTest, HundredThousandRowsComeThroughInOneStep) {
  int resets = 0;
  int inserts = 0;
  QObject::connect(View().model(), &QAbstractItemModel::modelReset, [&] { ++resets; });
  QObject::connect(View().model(), &QAbstractItemModel::rowsInserted, [&] { ++inserts; });
  for (int row = 1; row <= 100000; ++row) suche_.Liste.AddRow({std::to_string(row), "", "Name"});
  Wait();
  EXPECT_EQ(View().model()->rowCount(), 100000);
  EXPECT_EQ(resets + inserts, 1);
  View().scrollToBottom();
  Wait();
  EXPECT_EQ(resets + inserts, 1);
  suche_.Liste.SetCell(100000, 1, "letzte");
  EXPECT_EQ(Shown(99999, 0), QStringLiteral("letzte"));
  EXPECT_EQ(resets + inserts, 1);
}

TEST_F(ListTest, RowsThatAreGoneReadAsEmptyUntilTheViewKnows) {
  for (int row = 1; row <= 3; ++row) suche_.Liste.AddRow({std::to_string(row)});
  Wait();
  suche_.Liste.Clear();
  EXPECT_EQ(Shown(2, 0), QString());
  Wait();
  EXPECT_EQ(View().model()->rowCount(), 0);
}

TEST_F(ListTest, ClickSelectsAndTellsTheRow) {
  std::vector<int> selected;
  for (int row = 1; row <= 3; ++row) suche_.Liste.AddRow({std::to_string(row)});
  suche_.Liste.OnSelect = [&] { selected.push_back(suche_.Liste.Selected()); };
  Wait();
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, View().RowPoint(2));
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, View().RowPoint(2));
  EXPECT_EQ(selected, (std::vector<int>{2, 2}));
  EXPECT_TRUE(View().selectionModel()->isRowSelected(1));
  suche_.Liste.Select(3);
  EXPECT_TRUE(View().selectionModel()->isRowSelected(2));
  suche_.Liste.Select(0);
  EXPECT_FALSE(View().selectionModel()->hasSelection());
}

TEST_F(ListTest, DoubleClickComesOnceBehindItsClick) {
  std::string events;
  suche_.Liste.AddRow({"1"});
  suche_.Liste.OnSelect = [&] { events += "select "; };
  suche_.Liste.OnDoubleClick = [&] { events += "double "; };
  Wait();
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, View().RowPoint(1));
  QTest::mouseDClick(View().viewport(), Qt::LeftButton, {}, View().RowPoint(1));
  EXPECT_EQ(events.substr(0, 14), "select double ") << events;
}

TEST_F(ListTest, TickBoxTellsTheRowWithoutSelectingIt) {
  int ticked = 0;
  suche_.Liste.SetHasTicks(true);
  suche_.Liste.AddRow({"1"});
  suche_.Liste.AddRow({"2"});
  suche_.Liste.OnTick = [&](int row) { ticked = row; };
  Wait();
  QTest::mouseClick(View().viewport(), Qt::LeftButton, {}, View().TickPoint(2));
  EXPECT_EQ(ticked, 2);
  EXPECT_TRUE(suche_.Liste.Ticked(2));
  EXPECT_EQ(suche_.Liste.Selected(), 0);
}

TEST_F(ListTest, HeaderTellsTheColumnAmongTheHiddenOnes) {
  int column = 0;
  suche_.Liste.AddRow({"1", "", "x"});
  suche_.Liste.OnColumnClick = [&](int clicked) { column = clicked; };
  Wait();
  const QHeaderView* header = View().header();
  QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                    QPoint(header->sectionViewportPosition(1) + 10, header->height() / 2));
  EXPECT_EQ(column, 3);
}

TEST_F(ListTest, ArrowKeysMoveTheSelectionAsTheControlSays) {
  for (int row = 1; row <= 3; ++row) suche_.Liste.AddRow({std::to_string(row)});
  suche_.Liste.Select(1);
  Wait();
  QTest::keyClick(&View(), Qt::Key_Down);
  EXPECT_EQ(suche_.Liste.Selected(), 2);
  QTest::keyClick(&View(), Qt::Key_3);
  EXPECT_EQ(suche_.Liste.Selected(), 3);
}

TEST_F(ListTest, RowColoursAreShown) {
  suche_.Liste.AddRow({"1"});
  suche_.Liste.SetRowColour(1, kWarning);
  Wait();
  const QVariant colour = View().model()->index(0, 0).data(Qt::ForegroundRole);
  EXPECT_EQ(colour.value<QColor>().name(), QStringLiteral("#c42b1c"));
}

}  // namespace
}  // namespace kontorwerk
