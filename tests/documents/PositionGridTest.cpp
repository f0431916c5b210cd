// Rows, pages and labels of the position grid.
#include "documents/PositionGrid.h"

#include <gtest/gtest.h>

namespace kontorwerk {
namespace {

using Rows = std::vector<PositionRow>;

PositionRow Described(std::string_view text) {
  PositionRow row;
  row.B = text;
  return row;
}

Rows Numbered(int count) {
  Rows rows;
  for (int i = 0; i < count; ++i) rows.push_back(Described(std::to_string(i)));
  return rows;
}

TEST(IsFilled, AnyTextFillsButTheSecondRateAloneDoesNot) {
  EXPECT_FALSE(IsFilled({}));
  EXPECT_FALSE(IsFilled({"", "", "", "", "", "", true}));
  EXPECT_TRUE(IsFilled({"#01001", "", "", "", "", "", false}));
  EXPECT_TRUE(IsFilled({"", "NET50302", "", "", "", "", false}));
  EXPECT_TRUE(IsFilled({"", "", "1", "", "", "", false}));
  EXPECT_TRUE(IsFilled({"", "", "", " ", "", "", false}));
  EXPECT_TRUE(IsFilled({"", "", "", "", "1,00", "", false}));
  EXPECT_TRUE(IsFilled({"", "", "", "", "", "1,00", false}));
}

TEST(StoredRowCount, IsThePlaceOfTheLastFilledRow) {
  Rows rows(17);
  rows[0].B = "a";
  rows[2].B = "b";
  EXPECT_EQ(LastFilledRow(rows), 2);
  EXPECT_EQ(StoredRowCount(rows), 3);
  rows[16].S = "1";
  EXPECT_EQ(StoredRowCount(rows), 17);
}

TEST(StoredRowCount, EmptyGridIsStoredWhole) {
  EXPECT_EQ(LastFilledRow(Rows(17)), -1);
  EXPECT_EQ(StoredRowCount(Rows(17)), 17);
  EXPECT_EQ(StoredRowCount(Rows(34)), 34);
}

TEST(PageCount, SeventeenRowsAreOnePageAndEighteenAreTwo) {
  EXPECT_EQ(PageCount(1), 1);
  EXPECT_EQ(PageCount(17), 1);
  EXPECT_EQ(PageCount(18), 2);
  EXPECT_EQ(PageCount(34), 2);
  EXPECT_EQ(PageCount(35), 3);
  EXPECT_EQ(PageCount(0), 1);
}

TEST(RowsOfWholePages, RoundsUp) {
  EXPECT_EQ(RowsOfWholePages(0), 17);
  EXPECT_EQ(RowsOfWholePages(17), 17);
  EXPECT_EQ(RowsOfWholePages(18), 34);
}

TEST(PosLabel, StarStandsWhereANewPageBegins) {
  EXPECT_EQ(PosLabel(0), "1");
  EXPECT_EQ(PosLabel(16), "17");
  EXPECT_EQ(PosLabel(17), "18*");
  EXPECT_EQ(PosLabel(18), "19");
  EXPECT_EQ(PosLabel(34), "35*");
}

TEST(ScrollBar, FourteenRowsAreInViewAndANewPageShowsFourOldRows) {
  EXPECT_EQ(ScrollMaximum(17), 3);
  EXPECT_EQ(ScrollMaximum(34), 20);
  EXPECT_EQ(ScrollValueOfNewPage(34), 13);
}

TEST(InsertRow, MovesTheRowsBelowDown) {
  Rows rows = Numbered(4);
  rows.resize(6);
  rows[2].secondRate = true;
  InsertRow(rows, 1);
  ASSERT_EQ(rows.size(), 6U);
  EXPECT_EQ(rows[1], Described("1"));
  EXPECT_EQ(rows[2], PositionRow());
  EXPECT_EQ(rows[3].B, "2");
  EXPECT_TRUE(rows[3].secondRate);
  EXPECT_EQ(rows[4], Described("3"));
  EXPECT_EQ(rows[5], PositionRow());
}

TEST(InsertRow, FullLastRowGetsAPageFirst) {
  Rows rows = Numbered(17);
  InsertRow(rows, 3);
  ASSERT_EQ(rows.size(), 34U);
  EXPECT_EQ(rows[4], PositionRow());
  EXPECT_EQ(rows[17], Described("16"));
  EXPECT_EQ(PosLabel(17), "18*");
}

TEST(InsertRow, BehindAnEmptyLastRowNothingChanges) {
  Rows rows = Numbered(3);
  rows.emplace_back();
  const Rows before = rows;
  InsertRow(rows, 3);
  EXPECT_EQ(rows, before);
}

TEST(InsertRow, BehindAFullLastRowTheNewPageBegins) {
  Rows rows = Numbered(17);
  InsertRow(rows, 16);
  ASSERT_EQ(rows.size(), 34U);
  EXPECT_EQ(rows[16], Described("16"));
  EXPECT_EQ(rows[17], PositionRow());
}

TEST(DeleteRow, MovesTheRowsBelowUpAndEmptiesTheLast) {
  Rows rows = Numbered(4);
  rows[3].secondRate = true;
  DeleteRow(rows, 1);
  ASSERT_EQ(rows.size(), 4U);
  EXPECT_EQ(rows[0], Described("0"));
  EXPECT_EQ(rows[1], Described("2"));
  EXPECT_EQ(rows[2].B, "3");
  EXPECT_TRUE(rows[2].secondRate);
  EXPECT_EQ(rows[3], PositionRow());
}

TEST(DeleteRow, LastRowIsOnlyEmptied) {
  Rows rows = Numbered(2);
  DeleteRow(rows, 1);
  EXPECT_EQ(rows, (Rows{Described("0"), PositionRow()}));
}

}  // namespace
}  // namespace kontorwerk
