// The shapes of reading and writing a table.
#include "store/RecordStore.h"

#include <gtest/gtest.h>

#include "store/RecordLine.h"
#include "store/Text.h"
#include "tests/store/FaultyDisk.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk {
namespace {

using testing_support::FaultKind;
using testing_support::FaultyDisk;
using testing_support::TestFolder;
using Rows = std::vector<std::string_view>;

TEST(SplitRows, LastElementBehindTheLastLineEndIsEmpty) {
  EXPECT_EQ(SplitRows("a\r\nb\r\n"), (Rows{"a", "b", ""}));
  EXPECT_EQ(SplitRows("a"), (Rows{"a"}));
  EXPECT_EQ(SplitRows("\r\n"), (Rows{"", ""}));
  EXPECT_TRUE(SplitRows("").empty());
}

TEST(SplitRows, LoneCarriageReturnAndLineFeedDoNotSplit) {
  EXPECT_EQ(SplitRows("a\nb\rc\n\rd"), (Rows{"a\nb\rc\n\rd"}));
}

TEST(FirstRow, EndsBeforeTheFirstLineEnd) {
  EXPECT_EQ(FirstRow("a\r\nb\r\n"), "a");
  EXPECT_EQ(FirstRow("\r\nb\r\n"), "");
  EXPECT_EQ(FirstRow("a"), "a");
  EXPECT_EQ(FirstRow(""), "");
}

TEST(ForEachRow, SkipsBlankRowsAnywhere) {
  std::vector<std::string> rows;
  ForEachRow("\r\na\r\n\r\n\r\nb\r\n\r\n", [&rows](std::string_view row) { rows.emplace_back(row); });
  EXPECT_EQ(rows, (std::vector<std::string>{"a", "b"}));
}

TEST(ForEachRow, TakesALastRowWithoutLineEnd) {
  std::vector<std::string> rows;
  ForEachRow("a\r\nb", [&rows](std::string_view row) { rows.emplace_back(row); });
  EXPECT_EQ(rows, (std::vector<std::string>{"a", "b"}));
}

RowChange KeepAll(std::string_view) { return RowChange::Keep(); }

TEST(RewrittenText, KeepingBlankRowsGainsOneAtTheEnd) {
  EXPECT_EQ(RewrittenText("a\r\nb\r\n", BlankRows::Keep, KeepAll), "a\r\nb\r\n\r\n");
  EXPECT_EQ(RewrittenText("a\r\n\r\nb\r\n", BlankRows::Keep, KeepAll), "a\r\n\r\nb\r\n\r\n");
}

TEST(RewrittenText, DroppingBlankRowsCleansTheTable) {
  EXPECT_EQ(RewrittenText("\r\na\r\n\r\nb\r\n\r\n", BlankRows::Drop, KeepAll), "a\r\nb\r\n");
  EXPECT_EQ(RewrittenText("\r\n\r\n", BlankRows::Drop, KeepAll), "");
}

TEST(RewrittenText, TableWithoutFinalLineEndGetsOne) {
  EXPECT_EQ(RewrittenText("a\r\nb", BlankRows::Keep, KeepAll), "a\r\nb\r\n");
}

TEST(RewrittenText, EmptyTableStaysEmpty) { EXPECT_EQ(RewrittenText("", BlankRows::Keep, KeepAll), ""); }

TEST(RewrittenText, BlankRowsAreNotAskedFor) {
  int asked = 0;
  const auto count = [&asked](std::string_view) {
    ++asked;
    return RowChange::Remove();
  };
  EXPECT_EQ(RewrittenText("\r\na\r\n\r\nb\r\n", BlankRows::Keep, count), "\r\n\r\n\r\n");
  EXPECT_EQ(asked, 2);
}

class RecordStoreTest : public testing::Test {
 protected:
  RecordStoreTest() { settings_.DBPath = folder_.DataPath(); }

  void Put(std::string_view content) const { folder_.Put("Kundendb.dbf", content); }
  [[nodiscard]] std::optional<std::string> Content() const { return folder_.Content("Kundendb.dbf"); }

  TestFolder folder_;
  Settings settings_;
  FaultyDisk disk_;
  FileSystemObject files_{disk_};
  RecordStore store_{files_, settings_};
};

TEST_F(RecordStoreTest, ReadingAMissingTableGivesAnEmptyText) {
  EXPECT_EQ(store_.ReadTableText(table::kCustomers), "");
}

TEST_F(RecordStoreTest, AppendRowMakesAMissingTable) {
  EXPECT_TRUE(store_.AppendRow(table::kCustomers, "'a','b"));
  EXPECT_EQ(Content(), "'a','b\r\n");
}

TEST_F(RecordStoreTest, PrependRowMakesAMissingTable) {
  EXPECT_TRUE(store_.PrependRow(table::kInvoices, "'1','0001/2026"));
  EXPECT_EQ(folder_.Content("Rechnungendb.dbf"), "'1','0001/2026\r\n");
}

TEST_F(RecordStoreTest, AppendRowPutsTheRowBehindTheUnchangedText) {
  Put("'a\r\n\r\n");
  EXPECT_TRUE(store_.AppendRow(table::kCustomers, "'b"));
  EXPECT_EQ(Content(), "'a\r\n\r\n'b\r\n");
}

TEST_F(RecordStoreTest, AppendRowAddsNoLineEndToTheOldText) {
  Put("'a");
  EXPECT_TRUE(store_.AppendRow(table::kCustomers, "'b"));
  EXPECT_EQ(Content(), "'a'b\r\n");
}

TEST_F(RecordStoreTest, PrependRowPutsTheRowOnTop) {
  Put("'a\r\n");
  EXPECT_TRUE(store_.PrependRow(table::kCustomers, "'b"));
  EXPECT_EQ(Content(), "'b\r\n'a\r\n");
  EXPECT_EQ(FirstRow(store_.ReadTableText(table::kCustomers)), "'b");
}

TEST_F(RecordStoreTest, SeedRowSinksToTheBottom) {
  constexpr std::string_view kSeed =
      "'short','0100/2026','15.11.2026 ','','Datenbank Nummernupdate - Kontorwerk-System";
  EXPECT_TRUE(store_.PrependRow(table::kInvoices, kSeed));
  EXPECT_TRUE(store_.PrependRow(table::kInvoices, "'1','0101/2026"));
  EXPECT_EQ(store_.ReadTableText(table::kInvoices), Concat("'1','0101/2026\r\n", kSeed, "\r\n"));
}

TEST_F(RecordStoreTest, RewriteTableReplacesRemovesAndKeepsInOrder) {
  Put("'a\r\n'b\r\n'c\r\n");
  EXPECT_TRUE(store_.RewriteTable(table::kCustomers, BlankRows::Keep, [](std::string_view row) {
    if (row == "'a") return RowChange::Replace("'A");
    return row == "'b" ? RowChange::Remove() : RowChange::Keep();
  }));
  EXPECT_EQ(Content(), "'A\r\n'c\r\n\r\n");
}

TEST_F(RecordStoreTest, ThreeRewritesOfACustomerLeaveThreeBlankLinesAndTheSameRecords) {
  Put("'00100','Meier\r\n'00101','Schulz\r\n");
  for (int i = 0; i < 3; ++i) {
    EXPECT_TRUE(store_.RewriteTable(table::kCustomers, BlankRows::Keep, [](std::string_view row) {
      return RecordField(row, 1) == "00100" ? RowChange::Replace("'00100','Meyer") : RowChange::Keep();
    }));
  }
  EXPECT_EQ(Content(), "'00100','Meyer\r\n'00101','Schulz\r\n\r\n\r\n\r\n");
  std::vector<std::string> names;
  const std::string text = store_.ReadTableText(table::kCustomers);
  ForEachRow(text, [&names](std::string_view row) { names.emplace_back(RecordField(row, 2)); });
  EXPECT_EQ(names, (std::vector<std::string>{"Meyer", "Schulz"}));
}

TEST_F(RecordStoreTest, RowAppendedAfterARewriteStandsBehindTheBlankLine) {
  Put("'a\r\n");
  EXPECT_TRUE(store_.RewriteTable(table::kCustomers, BlankRows::Keep, KeepAll));
  EXPECT_TRUE(store_.AppendRow(table::kCustomers, "'b"));
  EXPECT_EQ(Content(), "'a\r\n\r\n'b\r\n");
}

TEST_F(RecordStoreTest, RewriteOfAMissingTableMakesAnEmptyOne) {
  EXPECT_TRUE(store_.RewriteTable(table::kCustomers, BlankRows::Keep, KeepAll));
  EXPECT_EQ(Content(), "");
}

TEST_F(RecordStoreTest, ReplaceRowByNumberReplacesEveryRowWithTheNumber) {
  Put("'1','0002/2026','x\r\n'1','0001/2026','y\r\n'2','0002/2026','z\r\n");
  EXPECT_TRUE(store_.ReplaceRowByNumber(table::kCustomers, "0002/2026", "'1','0002/2026','neu"));
  EXPECT_EQ(Content(), "'1','0002/2026','neu\r\n'1','0001/2026','y\r\n'1','0002/2026','neu\r\n\r\n");
}

TEST_F(RecordStoreTest, ReplaceRowByNumberWithoutSuchARowRewritesTheTableAsItWas) {
  Put("'1','0001/2026','0002/2026\r\n");
  EXPECT_TRUE(store_.ReplaceRowByNumber(table::kCustomers, "0002/2026", "'1','0002/2026','neu"));
  EXPECT_EQ(Content(), "'1','0001/2026','0002/2026\r\n\r\n");
}

TEST_F(RecordStoreTest, ReplaceRowByNumberComparesExactly) {
  Put("'1','0002/2026 \r\n'1','10002/2026\r\n");
  EXPECT_TRUE(store_.ReplaceRowByNumber(table::kCustomers, "0002/2026", "'neu"));
  EXPECT_EQ(Content(), "'1','0002/2026 \r\n'1','10002/2026\r\n\r\n");
}

TEST_F(RecordStoreTest, TableIsReadAfreshEachTime) {
  Put("'a\r\n");
  EXPECT_EQ(store_.ReadTableText(table::kCustomers), "'a\r\n");
  Put("'b\r\n");
  EXPECT_EQ(store_.ReadTableText(table::kCustomers), "'b\r\n");
  EXPECT_TRUE(store_.AppendRow(table::kCustomers, "'c"));
  EXPECT_EQ(Content(), "'b\r\n'c\r\n");
}

TEST_F(RecordStoreTest, ChangeOfTheDataFolderCountsAtOnce) {
  const TestFolder other;
  other.Put("Kundendb.dbf", "'other\r\n");
  settings_.DBPath = other.DataPath();
  EXPECT_EQ(store_.ReadTableText(table::kCustomers), "'other\r\n");
  EXPECT_EQ(store_.PathOf("EF0001.tmp"), other.DataPath() + "EF0001.tmp");
}

TEST_F(RecordStoreTest, OtherSpellingOfANameMeansTheSameTable) {
  folder_.Put("LagerArtikeldb.dbf", "'#00001\r\n");
  EXPECT_TRUE(store_.AppendRow("Lagerartikeldb.dbf", "'#00002"));
  EXPECT_EQ(store_.ReadTableText(table::kStock), "'#00001\r\n'#00002\r\n");
  EXPECT_EQ(folder_.Names().size(), 1U);
}

TEST_F(RecordStoreTest, TableOfBlankLinesOnlyHasNoRecordAndKeepsItsLines) {
  Put("\r\n\r\n\r\n");
  int rows = 0;
  const std::string text = store_.ReadTableText(table::kCustomers);
  ForEachRow(text, [&rows](std::string_view) { ++rows; });
  EXPECT_EQ(rows, 0);
  EXPECT_TRUE(store_.AppendRow(table::kCustomers, "'a"));
  EXPECT_EQ(Content(), "\r\n\r\n\r\n'a\r\n");
}

TEST_F(RecordStoreTest, TableWithUnixLineEndsIsOneRowAndSurvivesARewrite) {
  Put("'a\n'b\n");
  EXPECT_TRUE(store_.RewriteTable(table::kCustomers, BlankRows::Keep, KeepAll));
  EXPECT_EQ(Content(), "'a\n'b\n\r\n");
}

TEST_F(RecordStoreTest, OneLineOfTenMegabytesIsNothingSpecial) {
  const std::string line = "'1','" + std::string(10'000'000, 'x') + "','letztes";
  Put(line + "\r\n");
  EXPECT_TRUE(store_.ReplaceRowByNumber(table::kCustomers, "fehlt", "'neu"));
  EXPECT_EQ(Content(), line + "\r\n\r\n");
  EXPECT_EQ(RecordField(FirstRow(store_.ReadTableText(table::kCustomers)), 3), "letztes");
}

TEST_F(RecordStoreTest, AllBytesSurviveARewrite) {
  std::string all = "'";
  for (int byte = 0; byte < 256; ++byte) all.push_back(static_cast<char>(byte));
  Put(all + "\r\n");
  EXPECT_TRUE(store_.RewriteTable(table::kCustomers, BlankRows::Drop, KeepAll));
  EXPECT_EQ(Content(), all + "\r\n");
}

TEST_F(RecordStoreTest, FailedReadGivesAnEmptyTextAndSkipsTheWriteThatFollows) {
  Put("'a\r\n");
  disk_.Arm({FaultKind::Once, 0, EIO});
  EXPECT_EQ(store_.ReadTableText(table::kCustomers), "");
  EXPECT_FALSE(store_.WriteTable(table::kCustomers, "'only this\r\n"));
  EXPECT_FALSE(store_.WriteTable("KUNDENDB.DBF", "'only this\r\n")) << "the same table in another spelling";
  EXPECT_EQ(Content(), "'a\r\n");
}

TEST_F(RecordStoreTest, FailedReadOfOneTableDoesNotTouchTheOthers) {
  Put("'a\r\n");
  disk_.Arm({FaultKind::Once, 0, EIO});
  EXPECT_EQ(store_.ReadTableText(table::kCustomers), "");
  EXPECT_TRUE(store_.WriteTable(table::kArticles, "'b\r\n"));
  EXPECT_EQ(folder_.Content("Artikeldb.dbf"), "'b\r\n");
}

TEST_F(RecordStoreTest, WritingGoesOnOnceTheTableHasBeenReadAgain) {
  Put("'a\r\n");
  disk_.Arm({FaultKind::Once, 0, EIO});
  EXPECT_EQ(store_.ReadTableText(table::kCustomers), "");
  EXPECT_EQ(store_.ReadTableText(table::kCustomers), "'a\r\n");
  EXPECT_TRUE(store_.WriteTable(table::kCustomers, "'b\r\n"));
  EXPECT_EQ(Content(), "'b\r\n");
}

TEST_F(RecordStoreTest, FailedReadInsideAChangeSkipsItsWrite) {
  Put("'1','0001/2026\r\n");
  disk_.Arm({FaultKind::ForGood, 0, EIO});
  EXPECT_FALSE(store_.AppendRow(table::kCustomers, "'b"));
  EXPECT_FALSE(store_.PrependRow(table::kCustomers, "'b"));
  EXPECT_FALSE(store_.RewriteTable(table::kCustomers, BlankRows::Keep, KeepAll));
  EXPECT_FALSE(store_.ReplaceRowByNumber(table::kCustomers, "0001/2026", "'b"));
  EXPECT_EQ(disk_.Calls().size(), 4U) << "four reads and nothing else";
  EXPECT_EQ(Content(), "'1','0001/2026\r\n");
}

TEST_F(RecordStoreTest, TableThatIsAFolderIsNeverWritten) {
  std::filesystem::create_directory(folder_.Path() / "Kundendb.dbf");
  EXPECT_EQ(store_.ReadTableText(table::kCustomers), "");
  EXPECT_FALSE(store_.AppendRow(table::kCustomers, "'a"));
  EXPECT_TRUE(std::filesystem::is_empty(folder_.Path() / "Kundendb.dbf"));
}

TEST_F(RecordStoreTest, MissingDataFolderMakesNothing) {
  settings_.DBPath = folder_.DataPath("fehlt\\");
  EXPECT_EQ(store_.ReadTableText(table::kCustomers), "");
  EXPECT_FALSE(store_.AppendRow(table::kCustomers, "'a"));
  EXPECT_TRUE(folder_.Names().empty());
}

}  // namespace
}  // namespace kontorwerk
