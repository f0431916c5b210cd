// What a printed document takes out of the stock.
#include "documents/StockReduction.h"

#include <chrono>

#include "stock/StockRecords.h"
#include "store/RecordLine.h"
#include "tests/documents/DocumentFolder.h"

namespace kontorwerk {
namespace {

using testing_support::DocumentFolder;
using testing_support::FaultKind;
using Texts = std::vector<std::string>;

constexpr std::string_view kToday = "15.11.2026";

std::string StockRow(std::string_view number, std::string_view quantity, std::string_view single = "0",
                     std::string_view status = "Wareneingang am 01.01.2026") {
  StockRecord record;
  record[kStockLagerNr] = number;
  record[kStockArtNr] = "TEL00007";
  record[kStockLagerbestand] = quantity;
  record[kStockEinzel] = single;
  record[kStockStatus] = status;
  return record.Row();
}

PositionRow Sold(std::string_view number, std::string_view quantity) {
  PositionRow row;
  row.LGNr = number;
  row.S = quantity;
  return row;
}

class Stock : public DocumentFolder {
 protected:
  void Put(const Texts& lines) { PutTable("LagerArtikeldb.dbf", lines); }
  [[nodiscard]] Texts Rows() const { return Lines("LagerArtikeldb.dbf"); }
  [[nodiscard]] std::string Quantity(std::size_t row) const {
    return std::string(RecordField(Rows().at(row), kStockLagerbestand));
  }
};

TEST(MovesGoods, OnlyADeliveryNoteOrInvoiceThatWasNewInThisRun) {
  EXPECT_TRUE(MovesGoods(3, 0));
  EXPECT_TRUE(MovesGoods(4, 0));
  EXPECT_FALSE(MovesGoods(4, 3));  // the invoice printed behind its delivery note
  EXPECT_FALSE(MovesGoods(4, 4));
  EXPECT_FALSE(MovesGoods(1, 1));
  EXPECT_FALSE(MovesGoods(2, 2));
}

TEST_F(Stock, QuantityIsTakenOffAndTheEventWritten) {
  Put({StockRow("#01001", "10"), StockRow("#01002", "4")});
  EXPECT_TRUE(TakeOutOfStock(store_, {Sold("#01001", "3")}, kToday));
  EXPECT_EQ(Table("LagerArtikeldb.dbf"), StockRow("#01001", "7", "0", "Warenausgang am 15.11.2026 - Menge: 3") +
                                             "\r\n" + StockRow("#01002", "4") + "\r\n\r\n");
}

TEST_F(Stock, QuantityMayFallBelowZeroAndHaveDecimals) {
  Put({StockRow("#01001", "1"), StockRow("#01002", "2,5")});
  TakeOutOfStock(store_, {Sold("#01001", "3"), Sold("#01002", "0,75")}, kToday);
  EXPECT_EQ(Quantity(0), "-2");
  EXPECT_EQ(Quantity(1), "1,75");
}

TEST_F(Stock, OlderEventsBehindTheMarkAreNotCopied) {
  Put({StockRow("#01001", "10") + "','aelter','noch aelter"});
  TakeOutOfStock(store_, {Sold("#01001", "1")}, kToday);
  EXPECT_EQ(RecordFields(Rows().at(0)).size(), 36U);
  EXPECT_EQ(RecordField(Rows().at(0), 36), "Warenausgang am 15.11.2026 - Menge: 1");
}

TEST_F(Stock, ShortOlderLineIsFilledUpToItsColumns) {
  Put({"'#01001','TEL00007','Telefon','10"});
  TakeOutOfStock(store_, {Sold("#01001", "1")}, kToday);
  EXPECT_EQ(RecordFields(Rows().at(0)).size(), 36U);
  EXPECT_EQ(Quantity(0), "9");
}

TEST_F(Stock, SingleItemLeavesTheTable) {
  Put({StockRow("#01001", "1", "1"), StockRow("#01002", "1", "Wahr"), StockRow("#01003", "1", "0")});
  TakeOutOfStock(store_, {Sold("#01001", "1"), Sold("#01002", "1")}, kToday);
  EXPECT_EQ(Rows(), Texts{StockRow("#01003", "1", "0")});
}

TEST_F(Stock, PartOfTheStockNumberIsEnoughCaseAside) {
  Put({StockRow("#00123", "10"), StockRow("#00012", "10"), StockRow("#00045", "10"), StockRow("ab12", "10")});
  TakeOutOfStock(store_, {Sold("12", "1")}, kToday);
  EXPECT_EQ(Quantity(0), "9");
  EXPECT_EQ(Quantity(1), "9");
  EXPECT_EQ(Quantity(2), "10");
  EXPECT_EQ(Quantity(3), "9");
  TakeOutOfStock(store_, {Sold("aB1", "1")}, kToday);
  EXPECT_EQ(Quantity(3), "8");
}

TEST_F(Stock, NumberThatHoldsTheStockNumberDoesNotCount) {
  Put({StockRow("12", "10")});
  TakeOutOfStock(store_, {Sold("123", "1")}, kToday);
  EXPECT_EQ(Rows(), Texts{StockRow("12", "10")});
}

TEST_F(Stock, QuantityThatIsNoNumberLeavesTheColumnEmptyAndInPlace) {
  Put({StockRow("#01001", "10")});
  TakeOutOfStock(store_, {Sold("#01001", "2 Stck")}, kToday);
  EXPECT_EQ(Rows(), Texts{StockRow("#01001", "", "0", "Warenausgang am 15.11.2026 - Menge: 2 Stck")});
}

TEST_F(Stock, RowsOfOneItemAreTakenOffOneAfterTheOther) {
  Put({StockRow("#01001", "10")});
  TakeOutOfStock(store_, {Sold("#01001", "2"), {}, Sold("#01001", "3")}, kToday);
  EXPECT_EQ(Rows(), Texts{StockRow("#01001", "5", "0", "Warenausgang am 15.11.2026 - Menge: 3")});
}

TEST_F(Stock, NumberThatOccursTwiceInAStockNumberCountsOnce) {
  Put({StockRow("#01010", "10")});
  TakeOutOfStock(store_, {Sold("01", "1")}, kToday);
  EXPECT_EQ(Quantity(0), "9");
}

TEST_F(Stock, EachRowWithANumberLeavesOneBlankLine) {
  Put({StockRow("#01001", "10")});
  TakeOutOfStock(store_, {Sold("#01001", "2"), Sold("#77777", "1"), Sold("", "1")}, kToday);
  EXPECT_TRUE(Table("LagerArtikeldb.dbf").ends_with("Menge: 2\r\n\r\n\r\n"));
}

TEST_F(Stock, DocumentWithoutStockNumbersDoesNotTouchTheTable) {
  EXPECT_TRUE(TakeOutOfStock(store_, {Sold("", "1")}, kToday));
  EXPECT_EQ(Table("LagerArtikeldb.dbf"), "(missing)");
}

TEST_F(Stock, FailedReadLeavesTheTableAsItWas) {
  Put({StockRow("#01001", "10")});
  disk_.Arm({FaultKind::Once, 0});
  EXPECT_FALSE(TakeOutOfStock(store_, {Sold("#01001", "2")}, kToday));
  EXPECT_EQ(Rows(), Texts{StockRow("#01001", "10")});
}

TEST_F(Stock, ManyRowsMeetManyItems) {
  // Row by row this would compare 170 million times and rewrite the table 1,700 times.
  Texts lines;
  std::vector<PositionRow> rows;
  for (int i = 0; i < 100'000; ++i) lines.push_back("'#" + std::to_string(100'000 + i) + "','A','B','50");
  for (int i = 0; i < 1'700; ++i) rows.push_back(Sold("#" + std::to_string(100'000 + i * 7), "1"));
  Put(lines);
  const auto start = std::chrono::steady_clock::now();
  TakeOutOfStock(store_, rows, kToday);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  EXPECT_EQ(Quantity(7), "49");
  EXPECT_EQ(Quantity(8), "50");
  EXPECT_EQ(Quantity(1'699 * 7), "49");
}

TEST(PendingStockEntry, IsAShortRecordLineBehindABlank) { EXPECT_EQ(PendingStockEntry("#01001", "3"), " '#01001','3"); }

TEST_F(Stock, OnlyTheFirstPendingEntryTakesEffect) {
  Put({StockRow("#01001", "10"), "", StockRow("#01002", "10")});
  const std::string pending = PendingStockEntry("#01001", "3") + PendingStockEntry("#01002", "4");
  EXPECT_TRUE(TakePendingOutOfStock(store_, pending, kToday));
  EXPECT_EQ(Table("LagerArtikeldb.dbf"), StockRow("#01001", "7", "0", "Warenausgang am 15.11.2026 - Menge: 3") +
                                             "\r\n" + StockRow("#01002", "10") + "\r\n");
}

TEST_F(Stock, PendingEntryNeedsTheWholeStockNumber) {
  Put({StockRow("#01001", "10"), StockRow("#010011", "10")});
  TakePendingOutOfStock(store_, PendingStockEntry("#01001", "1"), kToday);
  EXPECT_EQ(Quantity(0), "9");
  EXPECT_EQ(Quantity(1), "10");
}

TEST_F(Stock, PendingSingleItemLeavesTheTable) {
  Put({StockRow("#01001", "1", "1"), StockRow("#01002", "10")});
  TakePendingOutOfStock(store_, PendingStockEntry("#01001", "1"), kToday);
  EXPECT_EQ(Rows(), Texts{StockRow("#01002", "10")});
}

TEST_F(Stock, EmptyPendingListTouchesNothing) {
  EXPECT_TRUE(TakePendingOutOfStock(store_, "  ", kToday));
  EXPECT_EQ(Table("LagerArtikeldb.dbf"), "(missing)");
}

}  // namespace
}  // namespace kontorwerk
