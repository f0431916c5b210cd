// The values of the marked fields, by kind, page and what is withheld.
#include "documents/PrintFields.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "documents/PrintForm.h"
#include "tests/documents/PrintRecorder.h"
#include "tests/store/TestFolder.h"

namespace kontorwerk {
namespace {

using testing_support::InvoiceOf;
using testing_support::PrintRecorder;

constexpr std::string_view kCarry = "Übertrag"_t;
constexpr std::string_view kCarryText = "Übertragtext"_t;

std::string ValueOf(const std::vector<PaperField>& fields, std::string_view name) {
  const auto found = std::find_if(fields.begin(), fields.end(), [&](const PaperField& f) { return f.name == name; });
  return found == fields.end() ? "(not set)" : found->text;
}

class PaperFieldsTest : public ::testing::Test {
 protected:
  [[nodiscard]] std::string Value(std::string_view name) const {
    return ValueOf(PaperFields(paper_, page_, settings_), name);
  }

  Settings settings_;
  PaperDocument paper_ = InvoiceOf(1);
  PaperPage page_;
};

TEST_F(PaperFieldsTest, WithoutAContactPersonTheNameMovesDownALine) {
  EXPECT_EQ(Value("KDName"), "");
  EXPECT_EQ(Value("Ansprechpartner"), "Max Mustermann");
  paper_.record.Ansprechpartner = "Frau Abel";
  EXPECT_EQ(Value("KDName"), "Max Mustermann");
  EXPECT_EQ(Value("Ansprechpartner"), "Frau Abel");
}

TEST_F(PaperFieldsTest, TheNumberStandsUnderTheKindsOwnName) {
  EXPECT_EQ(Value("Rechnungsnummer"), "0150/2007");
  EXPECT_EQ(Value("Belegart"), "(not set)");
  EXPECT_EQ(Value("Belegnummer"), "(not set)");
  settings_.Einheitsbelege = true;
  EXPECT_EQ(Value("Rechnungsnummer"), "(not set)");
  EXPECT_EQ(Value("Belegart"), "Rechnung");
  EXPECT_EQ(Value("Belegnummer"), "0150/2007");
}

TEST_F(PaperFieldsTest, TheKindIsSetFirstWhereOneTemplateServesAll) {
  EXPECT_EQ(PaperFields(paper_, page_, settings_).front().name, "KDNr");
  settings_.Einheitsbelege = true;
  EXPECT_EQ(PaperFields(paper_, page_, settings_).front().name, "Belegart");
}

TEST_F(PaperFieldsTest, AnInvoiceNamesItsDeliveryNoteOrItsTime) {
  EXPECT_EQ(Value("LieferscheinNr"),
            "Liefer-/Leistungszeitpunkt entspricht dem Rechnungsdatum (wenn nicht gesondert angegeben)");
  paper_.record.LieferscheinNr = "0077/2007";
  EXPECT_EQ(Value("LieferscheinNr"), "Lieferschein-Nr.: 0077/2007");
  paper_.kind = DocumentKind::Quotation;
  EXPECT_EQ(Value("LieferscheinNr"), "(not set)");
  settings_.Einheitsbelege = true;
  EXPECT_EQ(Value("LieferscheinNr"), "");
}

TEST_F(PaperFieldsTest, ATickedRowHasAStarBehindItsTotal) {
  paper_.record.rows[0].secondRate = true;
  EXPECT_EQ(Value("G1"), "1,50*");
  EXPECT_EQ(Value("E1"), "1,50");
  EXPECT_EQ(Value("G2"), "");
}

TEST_F(PaperFieldsTest, ADeliveryNoteWithoutPricesShowsNoneAndHasItsOwnTexts) {
  settings_.LFZahlungsweise = "frei Haus";
  paper_.kind = DocumentKind::DeliveryNote;
  EXPECT_EQ(Value("G1"), "1,50");
  EXPECT_EQ(Value("Zahlungsweise"), "frei Haus");
  paper_.withheld = Withheld::Prices;
  for (const char* name : {"E1", "G1", "Gesamt", "MWST", "MWST2", "Betrag"}) EXPECT_EQ(Value(name), "") << name;
  EXPECT_EQ(Value("S1"), "1");
  EXPECT_EQ(Value("Mehrwertsteuer"), "19");
  EXPECT_EQ(Value("Seitenangabe"), "Seite 1 von 1");
}

TEST_F(PaperFieldsTest, AQuotationWithoutTotalsKeepsThePricesOfItsRows) {
  paper_.kind = DocumentKind::Quotation;
  paper_.withheld = Withheld::Totals;
  for (const char* name : {"Gesamt", "MWST", "MWST2", "Betrag"}) EXPECT_EQ(Value(name), "") << name;
  EXPECT_EQ(Value("G1"), "1,50");
  EXPECT_EQ(Value("Zahlungsweise"), "sofort");
}

TEST_F(PaperFieldsTest, LaterPagesCarryTheSumAndEarlierOnesShowASubtotal) {
  paper_ = InvoiceOf(40);
  page_ = {1, 3, "0", "25,50"};
  EXPECT_EQ(Value(kCarry), "");
  EXPECT_EQ(Value(kCarryText), "");
  EXPECT_EQ(Value("Gesamt"), "25,50");
  EXPECT_EQ(Value("B1"), "Ware 1");
  page_ = {3, 3, "51,00", "60,00"};
  EXPECT_EQ(Value(kCarry), "51,00");
  EXPECT_EQ(Value(kCarryText), std::string("Übertrag:"_t));
  EXPECT_EQ(Value("Gesamt"), "100,00") << "the last page shows the field";
  EXPECT_EQ(Value("B1"), "Ware 35");
  EXPECT_EQ(Value("B7"), "") << "behind the last row";
  paper_.withheld = Withheld::Totals;
  EXPECT_EQ(Value(kCarry), "");
  EXPECT_EQ(Value(kCarryText), "");
  page_ = {1, 3, "0", "25,50"};
  EXPECT_EQ(Value("Gesamt"), "");
}

TEST_F(PaperFieldsTest, EveryFieldIsSetOnceAndSenderFieldsInAllAreas) {
  settings_.FirmenAdresse1 = "Firma";
  settings_.Steuernummer = "12/345";
  const std::vector<PaperField> fields = PaperFields(paper_, page_, settings_);
  std::vector<std::string> names;
  std::string everywhere;
  for (const PaperField& field : fields) {
    names.push_back(field.name);
    if (field.areas == FieldAreas::All) everywhere += field.name + " ";
  }
  EXPECT_EQ(everywhere, "FA1 FA2 FA3 FA4 FA5 FA6 FB1 FB2 FB3 Steuernummer USTIDNR ");
  std::sort(names.begin(), names.end());
  EXPECT_EQ(std::adjacent_find(names.begin(), names.end()), names.end());
  EXPECT_EQ(names.size(), 7U + 2U + 6U + 1U + 11U + 17U * 6U + 6U + 3U)
      << "head, number, references, sender, rows, amounts, texts";
  EXPECT_EQ(Value("Steuernummer"), "Steuernummer: 12/345");
  EXPECT_EQ(Value("USTIDNR"), " ");
}

TEST_F(PaperFieldsTest, WithoutATaxNumberTheBodyIsEmptyAndTheOtherAreasHoldABlank) {
  for (const PaperField& field : PaperFields(paper_, page_, settings_)) {
    if (field.name != "Steuernummer") continue;
    EXPECT_EQ(field.text, "");
    EXPECT_EQ(field.textOutsideBody, " ");
  }
}

TEST(Carry, AddsWhatIsANumberAndRoundsEachStep) {
  PaperDocument paper = InvoiceOf(3);
  paper.record.rows[1].G = "";
  paper.record.rows[2].G = "viel";
  EXPECT_EQ(CarryBehindPage(paper, 1, "0"), "1,50");
  EXPECT_EQ(CarryBehindPage(paper, 1, "10,50"), "12,00");
  EXPECT_EQ(CarryBehindPage(paper, 2, "7"), "7") << "a page behind the grid adds nothing";
  EXPECT_EQ(CarryBehindPage(InvoiceOf(0), 1, "0"), "0");
}

class RichTextForm : public ::testing::Test {
 protected:
  RichTextForm() { settings_.DBPath = folder_.DataPath(); }

  testing_support::TestFolder folder_;
  std::unique_ptr<Disk> disk_ = MakeSystemDisk();
  FileSystemObject files_{*disk_};
  Settings settings_;
};

TEST_F(RichTextForm, IsFilledWithNamesWithoutUmlauts) {
  folder_.Put("Belegvorlage.rtf",
              "{\\rtf1\\ansi{\\header [FA1]}[Ansprechpartner]|[Strasse]|[Belegnummer]|[LieferscheinNr]|"
              "[Leistungszeitpunkt]|[Uebertrag]|[Uebertragtext]|[S1]x[B1]|[Betrag]}");
  settings_.FirmenAdresse1 = "Firma";
  PaperDocument paper = InvoiceOf(1);
  paper.record.KDName = "A {B} \\ [Betrag]";
  const std::vector<std::string> pages = FillForm(paper, files_, settings_);
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_EQ(
      pages[0],
      "{\\rtf1\\ansi{\\header Firma}A \\{B\\} \\\\ [Betrag]||0150/2007||Liefer-/Leistungszeitpunkt entspricht dem "
      "Rechnungsdatum (wenn nicht gesondert angegeben)|||1xWare 1|119,00}");
}

TEST_F(RichTextForm, HasOneFormForEachPageAndNamesTheDeliveryNote) {
  folder_.Put("Belegvorlage.rtf", "{\\rtf1 [LieferscheinNr]|[Leistungszeitpunkt]|[Seitenangabe]|[Uebertrag]|[Gesamt]}");
  PaperDocument paper = InvoiceOf(18);
  paper.record.LieferscheinNr = "0077/2007";
  const std::vector<std::string> pages = FillForm(paper, files_, settings_);
  ASSERT_EQ(pages.size(), 2U);
  EXPECT_EQ(pages[0], "{\\rtf1 Lieferschein-Nr.: 0077/2007||Seite 1 von 2||25,50}");
  EXPECT_EQ(pages[1], "{\\rtf1 Lieferschein-Nr.: 0077/2007||Seite 2 von 2|25,50|100,00}");
}

TEST_F(RichTextForm, AMissingFormGivesNoPage) {
  EXPECT_TRUE(FillForm(InvoiceOf(1), files_, settings_).empty());
  folder_.Put("Belegvorlage.rtf", "no rich text");
  EXPECT_TRUE(FillForm(InvoiceOf(1), files_, settings_).empty());
}

TEST_F(RichTextForm, EachPageIsPrintedWithAllFieldsInAllAreasAndNothingIsSaved) {
  PrintRecorder word;
  EXPECT_TRUE(PrintForm(InvoiceOf(18), {"Büro", 2}, word, settings_));
  const std::string open = "OpenTemplate " + settings_.DBPath + "Belegvorlage.rtf";
  EXPECT_EQ(word.steps, (std::vector<std::string>{open, "PrintDocument Büro x2 Beleg 0150/2007", open,
                                                  "PrintDocument Büro x2 Beleg 0150/2007", "CloseDocument", "Reset"}));
  EXPECT_EQ(word.Field(1, "Uebertrag"), "25,50");
  EXPECT_EQ(word.Field(1, "2:Uebertrag"), "25,50");
  EXPECT_EQ(word.Field(1, "3:B1"), "Ware 18");
}

TEST_F(RichTextForm, AFailedPageLetsGoOfTheWordProcessor) {
  PrintRecorder word;
  word.fails = [](std::string_view step) { return step.starts_with("OpenTemplate"); };
  EXPECT_FALSE(PrintForm(InvoiceOf(1), {"Büro", 1}, word, settings_));
  EXPECT_EQ(word.steps.back(), "Reset");
}

}  // namespace
}  // namespace kontorwerk
