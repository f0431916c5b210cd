// The stock table without screens: numbers, flags, rewrites, searches, shortfalls.
#include "stock/StockRecords.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "stock/StockFromArticle.h"
#include "store/RecordLine.h"
#include "store/Text.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk {
namespace {

struct Item {
  std::string number = "#01001";
  std::string article = "NET00001";
  std::string quantity = {};
  std::string minimum = {};
  std::string flag = "0";
  std::string notes = {};
};

std::string Row(const Item& item) {
  StockRecord record;
  record[kStockLagerNr] = item.number;
  record[kStockArtNr] = item.article;
  record[kStockLagerbestand] = item.quantity;
  record[kStockMindestMenge] = item.minimum;
  record[kStockNotizen] = item.notes;
  record[kStockEinzel] = item.flag;
  return record.Row() + "\r\n";
}

std::vector<std::string> Numbers(const std::vector<std::string_view>& rows) {
  std::vector<std::string> numbers;
  for (const std::string_view row : rows) numbers.emplace_back(RecordField(row, kStockLagerNr));
  return numbers;
}

std::vector<std::string> Shortfalls(const std::string& table) {
  std::vector<std::string> texts;
  for (const Shortfall& shortfall : FindShortfalls(table))
    texts.push_back(shortfall.single
                        ? Concat(RecordField(shortfall.row, kStockArtNr), " ", std::to_string(shortfall.pieces))
                        : std::string(RecordField(shortfall.row, kStockLagerNr)));
  return texts;
}

using Texts = std::vector<std::string>;

TEST(StockNumber, BeginsBehindAThousand) { EXPECT_EQ(NextStockNumber(""), "#01001"); }

TEST(StockNumber, FollowsLastLineNotHighest) {
  EXPECT_EQ(NextStockNumber(Row({.number = "#05000"}) + Row({.number = "#00900"})), "#00901");
}

TEST(StockNumber, BlankLinesDoNotCount) {
  EXPECT_EQ(NextStockNumber("\r\n" + Row({.number = "#01007"}) + "\r\n\r\n"), "#01008");
  EXPECT_EQ(NextStockNumber("\r\n\r\n"), "#01001");
}

TEST(StockNumber, OnlyTheLastFiveCharactersCount) {
  EXPECT_EQ(NextStockNumber(Row({.number = "#99999"})), "#100000");
  EXPECT_EQ(NextStockNumber(Row({.number = "#100000"})), "#00001");
  EXPECT_EQ(NextStockNumber(Row({.number = "7"})), "#00008");
}

TEST(StockNumber, ALastLineWithoutANumberCountsAsNought) {
  EXPECT_EQ(NextStockNumber(Row({.number = "#01007"}) + "Rest\r\n"), "#00001");
}

TEST(StockRecord, SingleItemInEverySpelling) {
  for (const char* flag : {"1", "Wahr", "wahr", "WAHR", "True"}) EXPECT_TRUE(IsSingleItem(Row({.flag = flag}))) << flag;
  for (const char* flag : {"0", "", "Falsch", "11", "ja"}) EXPECT_FALSE(IsSingleItem(Row({.flag = flag}))) << flag;
}

TEST(StockRecord, AShortLineHasEmptyColumnsAndGrowsToItsFullLength) {
  const StockRecord record("'#01001','NET00001");
  EXPECT_EQ(record[kStockArtNr], "NET00001");
  EXPECT_EQ(record[kStockStatus], "");
  EXPECT_EQ(RecordFields(record.Row()).size(), static_cast<std::size_t>(kStockColumnCount));
}

TEST(StockRecord, ASeparatorInsideATextIsCarriedAlong) {
  const std::string row = Row({.notes = "a','b"});
  EXPECT_EQ(StockRecord(row.substr(0, row.size() - 2)).Row() + "\r\n", row);
}

TEST(StockRecord, ALineBreakNeverSplitsTheLine) {
  StockRecord record;
  record[kStockLagerOrt] = "Halle\r\n1";
  EXPECT_EQ(RecordField(record.Row(), kStockLagerOrt), "Halle*__*1");
}

TEST(StockRows, FirstAndLastOfAnArticleAreFoundByColumnTwoAlone) {
  const std::string table = Row({.number = "#1", .article = "HAN00001", .notes = "NET00001"}) + Row({.number = "#2"}) +
                            Row({.number = "#3"}) + Row({.number = "#4", .article = "NET000011"});
  EXPECT_EQ(RecordField(FirstRowOfArticle(table, "NET00001"), kStockLagerNr), "#2");
  EXPECT_EQ(RecordField(LastRowOfArticle(table, "NET00001"), kStockLagerNr), "#3");
  EXPECT_TRUE(FirstRowOfArticle(table, "NET0000").empty());
  EXPECT_EQ(RecordField(FindStockRow(table, "#4"), kStockArtNr), "NET000011");
  EXPECT_TRUE(FindStockRow(table, "#").empty());
}

class StockTable : public ::testing::Test {
 protected:
  StockTable() { settings_.DBPath = folder_.DataPath(); }
  void Put(std::string_view text) { folder_.Put("LagerArtikeldb.dbf", text); }
  [[nodiscard]] std::string Content() const { return folder_.Content("LagerArtikeldb.dbf").value_or("(missing)"); }

  testing_support::TestFolder folder_;
  std::unique_ptr<Disk> disk_ = MakeSystemDisk();
  FileSystemObject files_{*disk_};
  Settings settings_;
  RecordStore store_{files_, settings_};
};

TEST_F(StockTable, AReplacedRecordAddsOneBlankLineAndChangesNothingElse) {
  const std::string other = "'#01000',''','*__*','','x\r\n";
  Put(other + Row({.quantity = "1"}) + other);
  StockRecord record(Row({.quantity = "2"}).substr(0, Row({.quantity = "2"}).size() - 2));
  ASSERT_TRUE(ReplaceStockRecord(store_, record));
  EXPECT_EQ(Content(), other + Row({.quantity = "2"}) + other + "\r\n");
}

TEST_F(StockTable, AnUnknownNumberRewritesTheTableAsItWas) {
  Put(Row({}));
  StockRecord record;
  record[kStockLagerNr] = "#09999";
  ASSERT_TRUE(ReplaceStockRecord(store_, record));
  EXPECT_EQ(Content(), Row({}) + "\r\n");
}

TEST_F(StockTable, ARemovedRecordLeavesTheOthers) {
  Put(Row({.number = "#1"}) + Row({.number = "#2"}) + Row({.number = "#12"}));
  ASSERT_TRUE(RemoveStockRecord(store_, "#2"));
  EXPECT_EQ(Content(), Row({.number = "#1"}) + Row({.number = "#12"}) + "\r\n");
}

TEST_F(StockTable, TheMinimumIsRewrittenForEveryRowOfTheArticle) {
  Put(Row({.number = "#1", .minimum = "1", .flag = "Wahr"}) +
      Row({.number = "#2", .article = "HAN00001", .minimum = "7"}) + Row({.number = "#3", .flag = "Falsch"}));
  ASSERT_TRUE(RewriteMinimum(store_, "NET00001", "3", "9", "Letzte Änderung am 01.01.2026"_t));
  const std::string content = Content();
  std::vector<std::string_view> rows;
  ForEachRow(content, [&](std::string_view row) { rows.push_back(row); });
  ASSERT_EQ(rows.size(), 3U);
  for (const std::size_t i : {0U, 2U}) {
    EXPECT_EQ(RecordField(rows[i], kStockMindestMenge), "3");
    EXPECT_EQ(RecordField(rows[i], kStockSollMenge), "9");
    EXPECT_EQ(RecordField(rows[i], kStockStatus), "Letzte Änderung am 01.01.2026"_t);
  }
  EXPECT_EQ(RecordField(rows[0], kStockEinzel), "1");
  EXPECT_EQ(RecordField(rows[2], kStockEinzel), "0");
  EXPECT_EQ(Concat(rows[1], "\r\n"), Row({.number = "#2", .article = "HAN00001", .minimum = "7"}));
}

TEST(StockSearch, NumberTermsLookAtColumnTwoWithoutCase) {
  const std::string table = Row({.number = "#1"}) + Row({.number = "#2", .article = "HAN00001", .notes = "NET"}) +
                            Row({.number = "#3", .article = "NET10002"});
  EXPECT_EQ(Numbers(FindStockRows(table, {.category = "net"})), (Texts{"#1", "#3"}));
  EXPECT_EQ(Numbers(FindStockRows(table, {.category = "net", .digits = "0002"})), (Texts{"#3"}));
  EXPECT_EQ(Numbers(FindStockRows(table, {.digits = "00001", .freeText = "zzz"})), (Texts{"#1", "#2"}));
}

TEST(StockSearch, AStockNumberOverridesTheOtherTerms) {
  const std::string table = Row({.number = "#01001"}) + Row({.number = "#01010"}) + Row({.number = "#02000"});
  EXPECT_EQ(Numbers(FindStockRows(table, {.category = "ZZZ", .stockNumber = "#010"})), (Texts{"#01001", "#01010"}));
  EXPECT_EQ(Numbers(FindStockRows(table, {.stockNumber = "010"})), (Texts{"#01001", "#01010", "#02000"}));
}

TEST(StockSearch, TheFreeTextLooksAtTheWholeLine) {
  const std::string table = Row({.number = "#1", .notes = std::string("Größe ß"_t)}) + "\r\n" + Row({.number = "#2"});
  EXPECT_EQ(Numbers(FindStockRows(table, {.freeText = std::string("GRÖSSE"_t)})), Texts{});
  EXPECT_EQ(Numbers(FindStockRows(table, {.freeText = std::string("GRÖ"_t)})), (Texts{"#1"}));
  EXPECT_EQ(Numbers(FindStockRows(table, {})), (Texts{"#1", "#2"}));
  EXPECT_EQ(Numbers(FindStockRows(table, {.freeText = "','"})), (Texts{"#1", "#2"}));
}

TEST(StockSearch, OneRowIsMatchedByTheSameRules) {
  const std::string row = Row({.notes = "Regal"});
  EXPECT_TRUE(MatchesQuery(row, {}));
  EXPECT_TRUE(MatchesQuery(row, {.freeText = "REGAL"}));
  EXPECT_FALSE(MatchesQuery(row, {.digits = "2", .freeText = "REGAL"}));
  EXPECT_TRUE(MatchesQuery(row, {.category = "HAN", .stockNumber = "#01001"}));
  EXPECT_FALSE(MatchesQuery(row, {.category = "NET", .stockNumber = "#01002"}));
}

TEST(Shortfalls, AMultipleItemIsShortBelowItsMinimum) {
  EXPECT_EQ(Shortfalls(Row({.number = "#1", .quantity = "4", .minimum = "5"}) +
                       Row({.number = "#2", .quantity = "5", .minimum = "5"}) +
                       Row({.number = "#3", .quantity = "-1", .minimum = ""}) +
                       Row({.number = "#4", .quantity = "", .minimum = "1"}) +
                       Row({.number = "#5", .quantity = "9", .minimum = "10"}) +
                       Row({.number = "#6", .quantity = "1,4", .minimum = "1,5", .flag = "Falsch"})),
            (Texts{"#1", "#4", "#5", "#6"}));
}

TEST(Shortfalls, SingleItemsAreCountedOnceForTheirArticle) {
  const Item piece{.article = "HAN00001", .quantity = "1", .minimum = "3", .flag = "1"};
  Item other = piece;
  other.flag = "Wahr";
  EXPECT_EQ(Shortfalls(Row(piece) + "\r\n" + Row(other)), (Texts{"HAN00001 2"}));
  EXPECT_EQ(Shortfalls(Row(piece) + Row(other) + Row(piece)), Texts{});
}

TEST(Shortfalls, AnArticleWhoseNumberLiesInAnotherOneIsListedToo) {
  const Item first{.article = "HAN000011", .quantity = "1", .minimum = "2", .flag = "1"};
  const Item second{.article = "HAN00001", .quantity = "1", .minimum = "2", .flag = "1"};
  EXPECT_EQ(Shortfalls(Row(first) + Row(second)), (Texts{"HAN000011 1", "HAN00001 1"}));
}

TEST(Receipt, QuantitiesAddAsNumbers) {
  EXPECT_EQ(QuantityAfterReceipt("10", "2,5"), "12,5");
  EXPECT_EQ(QuantityAfterReceipt("1.234,5", "1e3"), "2234,5");
  EXPECT_EQ(QuantityAfterReceipt("10", "-12"), "-2");
  EXPECT_EQ(QuantityAfterReceipt("0", "-0"), "0");
  EXPECT_EQ(QuantityAfterReceipt("", "99999"), "99999");
  EXPECT_EQ(QuantityAfterReceipt("viele", "3"), "3");
  EXPECT_EQ(QuantityAfterReceipt("0,1", "0,2"), "0,3");
}

TEST(RateCaption, ReadsFromTheThirdCharacterOn) {
  EXPECT_EQ(RateCaption("0,07"), "7% MWST");
  EXPECT_EQ(RateCaption("0,075"), "7,5% MWST");
  EXPECT_EQ(RateCaption("0,19"), "19% MWST");
  EXPECT_EQ(RateCaption("0,165"), "16,5% MWST");
}

TEST(StockFromArticle, CopiesBothWaysButKeepsTheItemsOwnColumnsEmpty) {
  Article article;
  article.number = "NET00001";
  article.name = "Kabel";
  article.description = {"1", "2", "3", "4"};
  article.stockKept = true;
  article.unit = "a";
  article.packingUnit = "b";
  article.weight = "c";
  article.size = "d";
  article.manufacturer = "e";
  article.suppliers = {"s1", "s2", "s3"};
  article.orderNumbers = {"o1", "o2", "o3"};
  article.purchasePrices = {"1,00", "2,00", "3,00"};
  article.notes = "eins\r\nzwei";
  article.netPrice = "4,00";
  article.grossPrice = "9,00";
  article.secondRate = true;
  article.ean = "400";
  const StockRecord record = StockFromArticle(article);
  EXPECT_EQ(record.Row(),
            "'','NET00001','Kabel','','','','','','400','','','1','2','3','4','a','b','c','d','e','s1','s2','s3','o1','"
            "o2','o3',"
            "'1,00','2,00','3,00','eins*__*zwei','','4,00','9,00','1','0','");
  EXPECT_EQ(ArticleLine(ArticleFromStock(record)), ArticleLine(article));
}

}  // namespace
}  // namespace kontorwerk
