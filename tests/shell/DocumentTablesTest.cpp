// The document tables at the start: seed rows, first numbers, the missing credit notes, the new year.
#include "shell/DocumentTables.h"

#include <gtest/gtest.h>

#include <array>

#include "store/Text.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk {
namespace {

constexpr std::array<const char*, 4> kTables = {"Rechnungendb.dbf", "Angebotedb.dbf", "Lieferscheinedb.dbf",
                                                "Gutschriftendb.dbf"};

std::string Seed(std::string_view number, std::string_view date) {
  return Concat("'short','", number, "','", date, " ','','Datenbank Nummernupdate - Kontorwerk-System\r\n");
}

class DocumentTables : public ::testing::Test {
 protected:
  DocumentTables() { settings_.DBPath = folder_.DataPath(); }

  testing_support::TestFolder folder_;
  std::unique_ptr<Disk> disk_ = MakeSystemDisk();
  FileSystemObject files_{*disk_};
  Settings settings_;
  RecordStore store_{files_, settings_};
};

TEST(SeedRows, HaveABlankBehindTheDateAndNoClosingApostrophe) {
  EXPECT_EQ(SeedRow("0100/2026", "15.11.2026"),
            "'short','0100/2026','15.11.2026 ','','Datenbank Nummernupdate - Kontorwerk-System");
}

TEST_F(DocumentTables, SeedNumbersAreFieldTwoOfTheFirstRowAlone) {
  folder_.Put("Rechnungendb.dbf", "'short','0107/2026','x\r\n'short','0100/2026','x\r\n");
  folder_.Put("Angebotedb.dbf", "\r\n'short','0100/2026','x\r\n");
  folder_.Put("Lieferscheinedb.dbf", "'short");
  const SeedNumbers numbers = ReadSeedNumbers(store_);
  EXPECT_EQ(numbers.invoices, "0107/2026");
  EXPECT_EQ(numbers.quotations, "") << "the first row is blank";
  EXPECT_EQ(numbers.deliveryNotes, "");
  EXPECT_EQ(numbers.creditNotes, "") << "no such file";
  EXPECT_FALSE(numbers.NoneFilled());
}

TEST_F(DocumentTables, AFolderThatIsNotThereLooksLikeOneWithoutTables) {
  settings_.DBPath = folder_.DataPath("nirgends") + "\\";
  EXPECT_TRUE(ReadSeedNumbers(store_).NoneFilled());
}

TEST(SeedNumberReference, IsTheInvoicesThenTheQuotations) {
  EXPECT_EQ((SeedNumbers{"1", "2", "3", "4"}.Reference()), "1");
  EXPECT_EQ((SeedNumbers{"", "2", "3", "4"}.Reference()), "2");
  EXPECT_EQ((SeedNumbers{"", "", "3", "4"}.Reference()), "");
}

TEST_F(DocumentTables, CreditNotesAreAddedWhereTheOtherThreeHaveNumbers) {
  AddCreditNoteTable(store_, {"0100/2024", "0200/2024", "0300/2024", ""}, "15.11.2026");
  EXPECT_EQ(folder_.Content("Gutschriftendb.dbf"), Seed("0100/2026", "15.11.2026"));
}

TEST_F(DocumentTables, CreditNotesAreLeftAloneOtherwise) {
  AddCreditNoteTable(store_, {"", "2", "3", ""}, "15.11.2026");
  AddCreditNoteTable(store_, {"1", "", "3", ""}, "15.11.2026");
  AddCreditNoteTable(store_, {"1", "2", "", ""}, "15.11.2026");
  AddCreditNoteTable(store_, {"1", "2", "3", "4"}, "15.11.2026");
  EXPECT_TRUE(folder_.Names().empty());
}

TEST(FirstNumbers, OfFourDigitsHaveNoFault) {
  EXPECT_EQ(FirstNumberFault({"0101", "0101", "0101", "0101"}), std::nullopt);
}

TEST(FirstNumbers, AreCheckedForLengthFirstFromTheCreditNoteOn) {
  const std::string example = "\r\nBsp: 0150/2007";
  EXPECT_EQ(FirstNumberFault({"1", "1", "1", "1"}), "Gutschriftnummer weist falsches Format auf!!" + example);
  EXPECT_EQ(FirstNumberFault({"1", "1", "1", "abcd"}), "Lieferscheinnummer weist falsches Format auf!!" + example);
  EXPECT_EQ(FirstNumberFault({"1", "1", "abcd", "abcd"}), "Rechnungsnummer weist falsches Format auf!!" + example);
  EXPECT_EQ(FirstNumberFault({"abcd", "0101/2026", "abcd", "abcd"}),
            "Angebotsnummer weist falsches Format auf!!" + example)
      << "a length comes before every letter";
}

TEST(FirstNumbers, AreCheckedForDigitsInTheSameOrder) {
  const std::string example = "\r\nBsp: 0150/2007";
  EXPECT_EQ(FirstNumberFault({"abcd", "abcd", "abcd", "abcd"}),
            "Gutschriftnummer weist falsches Format auf!!" + example);
  EXPECT_EQ(FirstNumberFault({"abcd", "abcd", "abcd", "0101"}),
            "Lieferscheinnummer weist falsches Format auf!!" + example);
  EXPECT_EQ(FirstNumberFault({"abcd", "abcd", "0101", "0101"}),
            "Rechnungsnummer weist falsches Format auf!!" + example);
  EXPECT_EQ(FirstNumberFault({"0101", "abcd", "0101", "0101"}), "Angebotsnummer weist falsches Format auf!!" + example);
}

TEST(FirstNumbers, GiveTheLastNumberUsed) {
  EXPECT_EQ(NumberBefore("0101"), "0100");
  EXPECT_EQ(NumberBefore("0150"), "0149");
  EXPECT_EQ(NumberBefore("1000"), "0999");
  EXPECT_EQ(NumberBefore("0001"), "0000");
  EXPECT_EQ(NumberBefore("0000"), "00-1");
}

TEST_F(DocumentTables, AreMadeOverWhatWasThere) {
  folder_.Put("Angebotedb.dbf", "old");
  CreateDocumentTables(store_, {"0500", "0150", "0001", "0900"}, "/2026", "15.11.2026");
  EXPECT_EQ(folder_.Content("Rechnungendb.dbf"), Seed("0499/2026", "15.11.2026"));
  EXPECT_EQ(folder_.Content("Angebotedb.dbf"), Seed("0149/2026", "15.11.2026"));
  EXPECT_EQ(folder_.Content("Lieferscheinedb.dbf"), Seed("0000/2026", "15.11.2026"));
  EXPECT_EQ(folder_.Content("Gutschriftendb.dbf"), Seed("0499/2026", "15.11.2026"))
      << "the number typed for the credit notes does not reach the file";
}

TEST(Years, AreComparedAsTheLastFourCharacters) {
  EXPECT_EQ(CompareYears("15.11.2026", "0107/2026"), YearState::Same);
  EXPECT_EQ(CompareYears("01.01.2027", "0107/2026"), YearState::NewYear);
  EXPECT_EQ(CompareYears("31.12.2026", "0107/2027"), YearState::DataNewerThanCalendar);
  EXPECT_EQ(CompareYears("31.12.2026", "26"), YearState::DataNewerThanCalendar) << "text, not number";
}

TEST_F(DocumentTables, GetTheNewYearsSeedInFrontOfTheOldText) {
  for (const char* name : kTables) folder_.Put(name, std::string("'short','0100/2026','x\r\n'lang','0101/2026") + name);
  StartNewYear(store_, "02.01.2027");
  for (const char* name : kTables)
    EXPECT_EQ(folder_.Content(name),
              Seed("0100/2027", "02.01.2027") + "'short','0100/2026','x\r\n'lang','0101/2026" + name);
}

TEST_F(DocumentTables, AreMadeInTheNewYearWhereTheyAreMissing) {
  folder_.Put("Rechnungendb.dbf", "a\r\n");
  StartNewYear(store_, "02.01.2027");
  EXPECT_EQ(folder_.Content("Rechnungendb.dbf"), Seed("0100/2027", "02.01.2027") + "a\r\n");
  EXPECT_EQ(folder_.Content("Gutschriftendb.dbf"), Seed("0100/2027", "02.01.2027"));
}

}  // namespace
}  // namespace kontorwerk
