// Numbers, lines and search of the partners' tables, without a screen.
#include "partners/PartnerTable.h"

#include <gtest/gtest.h>

#include <memory>

#include "store/RecordLine.h"
#include "store/Text.h"
#include "tests/partners/PartnerDesk.h"
#include "tests/store/FaultyDisk.h"

namespace kontorwerk {
namespace {

using testing_support::Fault;
using testing_support::FaultKind;
using testing_support::FaultyDisk;
using testing_support::LineWith;
using testing_support::PartnerWith;
using testing_support::TestFolder;

TEST(NextPartnerNumber, EmptyTableBeginsTheRangeOfTheKind) {
  EXPECT_EQ(NextPartnerNumber("", CustomerKind()), "00100");
  EXPECT_EQ(NextPartnerNumber("", SupplierKind()), "90000");
  EXPECT_EQ(NextPartnerNumber("\r\n\r\n", CustomerKind()), "00100");
}

TEST(NextPartnerNumber, FollowsTheLastLineNotTheHighest) {
  EXPECT_EQ(NextPartnerNumber("'00900','A\r\n'00123','B\r\n", CustomerKind()), "00124");
}

TEST(NextPartnerNumber, LooksPastBlankLines) {
  EXPECT_EQ(NextPartnerNumber("'00123','A\r\n\r\n\r\n\r\n", CustomerKind()), "00124");
}

TEST(NextPartnerNumber, GrowsBehindTheLastFiveDigitNumber) {
  EXPECT_EQ(NextPartnerNumber("'99999','A\r\n", SupplierKind()), "100000");
  EXPECT_EQ(NextPartnerNumber("'99999','A\r\n'100000','B\r\n", SupplierKind()), "100001");
}

TEST(NextPartnerNumber, LinesWithoutANumberAreNoLastLine) {
  EXPECT_EQ(NextPartnerNumber("'00123','A\r\n'Meier','B\r\nx\r\n'\r\n", CustomerKind()), "00124");
  EXPECT_EQ(NextPartnerNumber("'99999999999999999999','A\r\n", CustomerKind()), "00100");
}

TEST(PartnerLine, EndsWithTheDateAndNoApostrophe) {
  const std::string line = PartnerLine(PartnerWith(CustomerKind(), {{1, "00100"}, {2, "Meier GmbH"}}));
  EXPECT_TRUE(line.starts_with("'00100','Meier GmbH','"));
  EXPECT_TRUE(line.ends_with("','','','15.11.2026"));
  EXPECT_EQ(RecordFields(line).size(), 31U);
  EXPECT_EQ(RecordField(line, 31), "15.11.2026");
}

TEST(PartnerLine, SupplierHasThirtyEightFields) {
  const std::string line = PartnerLine(PartnerWith(SupplierKind(), {{1, "90000"}, {37, "geheim"}}));
  EXPECT_EQ(RecordFields(line).size(), 38U);
  EXPECT_EQ(RecordField(line, 37), "geheim");
  EXPECT_EQ(RecordField(line, 38), "15.11.2026");
}

TEST(PartnerLine, ThreeLinesOfANoteAreOneFieldWithTwoMarks) {
  const std::string line = PartnerLine(PartnerWith(CustomerKind(), {{partner::kFreitext, "a\r\nb\r\nc"}}));
  EXPECT_EQ(RecordField(line, partner::kFreitext), "a*__*b*__*c");
  EXPECT_EQ(ReadPartner(line, CustomerKind()).Text(partner::kFreitext), "a\r\nb\r\nc");
}

TEST(PartnerLine, NoBoxBreaksTheLine) {
  const std::string line = PartnerLine(PartnerWith(CustomerKind(), {{partner::kName, "a\r\nb"}}));
  EXPECT_EQ(line.find("\r\n"), std::string::npos);
}

TEST(PartnerLine, ContactPersonStaysInHisSlot) {
  const int slotFour = partner::ContactName(4);
  const std::string line = PartnerLine(PartnerWith(CustomerKind(), {{slotFour, "Frau Vier"}}));
  EXPECT_EQ(slotFour, 23);
  EXPECT_EQ(RecordField(line, 23), "Frau Vier");
  EXPECT_EQ(RecordField(line, 14), "");
}

TEST(ReadPartner, ShortLineGivesEmptyTexts) {
  const Partner partner = ReadPartner("'00100','Meier", CustomerKind());
  EXPECT_EQ(partner.texts.size(), 30U);
  EXPECT_EQ(partner.Text(partner::kName), "Meier");
  EXPECT_EQ(partner.Text(partner::kAnrede), "");
  EXPECT_EQ(partner.Erfassdatum, "");
}

TEST(ReadPartner, SeparatorInAFieldMovesTheLaterOnes) {
  const std::string line = PartnerLine(PartnerWith(CustomerKind(), {{2, "A','B"}, {3, "Weg 1"}}));
  const Partner partner = ReadPartner(line, CustomerKind());
  EXPECT_EQ(partner.Text(2), "A");
  EXPECT_EQ(partner.Text(3), "B");
  EXPECT_EQ(partner.Text(4), "Weg 1");
}

TEST(FindPartner, ComparesTheWholeNumber) {
  const std::string table =
      LineWith(CustomerKind(), {{1, "00100"}, {2, "A"}}) + LineWith(CustomerKind(), {{1, "00101"}, {2, "B"}});
  EXPECT_EQ(FindPartner(table, "00101", CustomerKind())->Text(2), "B");
  EXPECT_FALSE(FindPartner(table, "0010", CustomerKind()));
  EXPECT_FALSE(FindPartner("", "00100", CustomerKind()));
}

TEST(FindPartners, FindsAnyTextOfTheRawLine) {
  const std::string table = LineWith(CustomerKind(), {{1, "00100"}, {2, "Müller"_t}, {4, "78550"}}) +
                            LineWith(CustomerKind(), {{1, "00101"}, {2, "Schmidt"}, {7, "887855"}}) +
                            LineWith(CustomerKind(), {{1, "00102"}, {2, "Weber"}}, "07.08.7855") +
                            LineWith(CustomerKind(), {{1, "00103"}, {2, "Keiner"}});
  const std::vector<PartnerHit> hits = FindPartners(table, "7855");
  ASSERT_EQ(hits.size(), 3U);
  EXPECT_EQ(hits[0].number, "00100");
  EXPECT_EQ(hits[1].name, "Schmidt");
  EXPECT_EQ(hits[2].number, "00102");
  EXPECT_EQ(FindPartners(table, ",").size(), 4U);
  EXPECT_EQ(FindPartners(table, "").size(), 4U);
  EXPECT_EQ(FindPartners(table, "MÜLLER"_t).size(), 1U);
  EXPECT_EQ(FindPartners(table, "','15").size(), 3U);
  EXPECT_EQ(FindPartners(table, "*").size(), 0U);
}

TEST(FindPartners, BlankLinesAreNoHits) { EXPECT_EQ(FindPartners("\r\n\r\n'00100','A\r\n\r\n", "").size(), 1U); }

// What reaches the disk, and what a failing disk leaves.
class PartnerTable : public ::testing::Test {
 protected:
  PartnerTable() { settings_.DBPath = folder_.DataPath(); }

  TestFolder folder_;
  FaultyDisk disk_;
  FileSystemObject files_{disk_};
  Settings settings_;
  RecordStore store_{files_, settings_};
};

TEST_F(PartnerTable, AppendingKeepsEveryOldByte) {
  const std::string old = "'00100','A\r\n\r\n\r\n";
  folder_.Put("Kundendb.dbf", old);
  Partner partner = PartnerWith(CustomerKind(), {{2, "B"}});
  EXPECT_TRUE(AppendPartner(store_, CustomerKind(), partner, "16.11.2026"));
  EXPECT_EQ(partner.Text(partner::kNumber), "00101");
  EXPECT_EQ(folder_.Content("Kundendb.dbf"), old + PartnerLine(partner) + "\r\n");
  EXPECT_TRUE(folder_.Content("Kundendb.dbf")->ends_with("','16.11.2026\r\n"));
}

TEST_F(PartnerTable, ReplacingKeepsTheDateAndAddsABlankLine) {
  const std::string other = LineWith(CustomerKind(), {{1, "00101"}, {2, "B"}});
  folder_.Put("Kundendb.dbf", LineWith(CustomerKind(), {{1, "00100"}, {2, "A"}}, "01.02.2003") + other);
  EXPECT_TRUE(ReplacePartner(store_, CustomerKind(), PartnerWith(CustomerKind(), {{1, "00100"}, {2, "C"}})));
  EXPECT_EQ(folder_.Content("Kundendb.dbf"),
            LineWith(CustomerKind(), {{1, "00100"}, {2, "C"}}, "01.02.2003") + other + "\r\n");
}

TEST_F(PartnerTable, RemovingDropsBlankLinesToo) {
  const std::string rest = LineWith(SupplierKind(), {{1, "90001"}, {2, "B"}});
  folder_.Put("Lieferantendb.dbf", "\r\n" + LineWith(SupplierKind(), {{1, "90000"}}) + "\r\n" + rest + "\r\n\r\n");
  EXPECT_EQ(RemovePartner(store_, SupplierKind(), "90000"), rest);
  EXPECT_EQ(folder_.Content("Lieferantendb.dbf"), rest);
}

TEST_F(PartnerTable, FailingReadLeavesTheTableAlone) {
  const std::string old = LineWith(CustomerKind(), {{1, "00100"}, {2, "A"}});
  folder_.Put("Kundendb.dbf", old);
  Partner partner = PartnerWith(CustomerKind(), {{1, "00100"}, {2, "B"}});
  const auto breakReading = [this] { disk_.Arm({.kind = FaultKind::Once, .call = 0}); };
  breakReading();
  EXPECT_FALSE(ReplacePartner(store_, CustomerKind(), partner));
  breakReading();
  EXPECT_EQ(RemovePartner(store_, CustomerKind(), "00100"), "");
  breakReading();
  EXPECT_FALSE(AppendPartner(store_, CustomerKind(), partner, "16.11.2026"));
  EXPECT_EQ(folder_.Content("Kundendb.dbf"), old);
}

// Whatever call of a save fails, the table is the old one or the new one.
TEST_F(PartnerTable, EveryFaultOfASaveLeavesAWholeTable) {
  const std::string old =
      LineWith(CustomerKind(), {{1, "00100"}, {2, "A"}}) + LineWith(CustomerKind(), {{1, "00101"}, {2, "B"}});
  const Partner changed = PartnerWith(CustomerKind(), {{1, "00100"}, {2, "C"}});
  const std::string replaced =
      LineWith(CustomerKind(), {{1, "00100"}, {2, "C"}}) + LineWith(CustomerKind(), {{1, "00101"}, {2, "B"}}) + "\r\n";
  for (const FaultKind kind : {FaultKind::Once, FaultKind::ForGood, FaultKind::ShortWrite, FaultKind::Killed}) {
    for (std::size_t call = 0;; ++call) {
      folder_.Put("Kundendb.dbf", old);
      disk_.Arm({.kind = kind, .call = call});
      ReplacePartner(store_, CustomerKind(), changed);
      const std::string now = folder_.Content("Kundendb.dbf").value_or("(missing)");
      EXPECT_TRUE(now == old || now == replaced) << "call " << call;
      if (disk_.Fired() == 0 && call >= disk_.Calls().size()) break;
    }
  }
}

}  // namespace
}  // namespace kontorwerk
