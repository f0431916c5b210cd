// What stands on the papers of every kind: amounts, carry-over, what is withheld, and texts that look like markup.
#include <gtest/gtest.h>

#include <string>

#include "tests/road/PaperRoad.h"
#include "tests/word/WordSupport.h"

namespace kontorwerk::testing_support {
namespace {

constexpr std::string_view kPdf = "PDF-Datei";
constexpr std::string_view kNoBoxes = "expect-boxes 0\n";

// Rows of one, two, three ... pieces at 1,10 EUR; every fifth is a line of text alone.
std::string ManyRows(int count) {
  std::string steps;
  for (int added = 17; added < count; added += 17) steps += "click ABRGForm.Command10\n";
  for (int row = 0; row < count; ++row) {
    const std::string number = std::to_string(row + 1);
    const bool isText = row % 5 == 4;
    steps += TypedRow(row, isText ? "" : number, "Zeile " + number, isText ? "" : "1,10");
  }
  return steps;
}

// The printed document of many rows on pages named `stem`_Seite1 and so on.
std::vector<std::string> Pages(const RoadRun& run, const std::string& stem, int count) {
  std::vector<std::string> pages;
  for (int page = 1; page <= count; ++page) pages.push_back(run.Paper(stem + "_Seite" + std::to_string(page)));
  return pages;
}

TEST_F(PaperTest, ThreePagesCarryTheirSubtotalsOver) {
  RoadRun run;
  PaperRoad::Shared().Play(run, ManyRows(36) + PrintBoth(kPdf, 1, 1) + std::string(kNoBoxes));
  EXPECT_EQ(run.Words("OpenTemplate", "path"),
            (std::vector<std::string>{"daten\\\\Rechnungsvorlage_long1.dot", "daten\\\\Rechnungsvorlage_long2.dot",
                                      "daten\\\\Rechnungsvorlage_long3.dot"}));
  const std::vector<std::string> pages = Pages(run, "RG0108-2026_Müller & Söhne", 3);
  EXPECT_HOLDS(pages[0], "Seite 1 von 3");
  EXPECT_HOLDS(pages[0], "17 Zeile 17 1,10 18,70\nZwischensumme EUR\n135,30");
  EXPECT_LACKS(pages[0], "Übertrag");
  EXPECT_LACKS(pages[0], "MwSt.");
  EXPECT_HOLDS(pages[1], "Seite 2 von 3");
  EXPECT_HOLDS(pages[1], "Übertrag: 135,30\n18 Zeile 18 1,10 19,80");
  EXPECT_HOLDS(pages[1], "34 Zeile 34 1,10 37,40\nZwischensumme EUR\n539,00");
  EXPECT_HOLDS(pages[2], "Seite 3 von 3");
  EXPECT_HOLDS(pages[2], "Übertrag: 539,00\nZeile 35\n36 Zeile 36 1,10 39,60\n");
  EXPECT_HOLDS(pages[2], "578,60 109,93 0,00 688,53");
  EXPECT_HOLDS(pages[2], "Zahlbar sofort.");
  EXPECT_LACKS(pages[2], "Zwischensumme");
}

TEST_F(PaperTest, EighteenRowsAreTheFirstAndTheLastPageOfTwo) {
  RoadRun run;
  PaperRoad::Shared().Play(run, ManyRows(18) + PrintBoth(kPdf, 1, 1) + std::string(kNoBoxes),
                           {.firm = {.oneFormForAll = true}});
  EXPECT_EQ(run.Words("OpenTemplate", "path"),
            (std::vector<std::string>{"daten\\\\Belegvorlage_long1.dot", "daten\\\\Belegvorlage_long3.dot"}));
  const std::vector<std::string> pages = Pages(run, "RG0108-2026_Müller & Söhne", 2);
  EXPECT_HOLDS(pages[0], "Rechnung 0108/2026");
  EXPECT_HOLDS(pages[0], "Zwischensumme EUR\n135,30");
  EXPECT_HOLDS(pages[1], "Übertrag: 135,30\n18 Zeile 18 1,10 19,80\n");
  EXPECT_HOLDS(pages[1], "155,10 29,47 0,00 184,57");
}

// All kinds of one page, with templates of their own and with the form for all.
class KindsTest : public PaperTest, public ::testing::WithParamInterface<bool> {};

TEST_P(KindsTest, EachKindShowsItsNumberAndWhatMayBeSeen) {
  const std::string positions =
      TypedRow(0, "2", "Regal", "50,00") + TypedRow(1, "1", "Buch", "20,00") + "click ABRGForm.MWST2_Check(1)\n";
  const std::string next = "answer Ja\nclick ABRGForm.Command8\n";
  const std::string print = "answer printer \"PDF-Datei\" 1\n";
  // The questions of a quotation: with its total, among the open documents.
  const std::string quote = "answer Nein\n" + print + "answer Nein\nclick ABRGForm.Command1\n";
  const std::string steps = positions + PrintBoth(kPdf, 1, 2, true) +                     //
                            next + "choose ABRGForm.ComboABRG 1\n" + positions + quote +  //
                            next + "choose ABRGForm.ComboABRG 2\n" + positions + print +  //
                            "click ABRGForm.Command1\n" +                                 //
                            next + "click ABRGForm.BruttoButton\n" + positions + PrintBoth(kPdf, 1, 1);
  RoadRun run;
  PaperRoad::Shared().Play(run, steps, {.firm = {.oneFormForAll = GetParam()}});
  ASSERT_EQ(run.Papers().size(), 8U);

  const std::string note = run.Paper("LS0106-2026_Müller & Söhne");
  EXPECT_HOLDS(note, "Lieferschein 0106/2026");
  EXPECT_HOLDS(note, "2 Regal\n1 Buch\n");
  EXPECT_HOLDS(note, "Bitte prüfen.");
  EXPECT_HOLDS(note, "Seite 1 von 1");
  for (const char* amount : {"50,00", "100,00", "120,00", "19,00", "1,40", "140,40"}) EXPECT_LACKS(note, amount);

  const std::string quotation = run.Paper("AB0104-2026_Müller & Söhne");
  EXPECT_HOLDS(quotation, "Angebot 0104/2026");
  EXPECT_HOLDS(quotation, "2 Regal 50,00 100,00\n1 Buch 20,00 20,00*\n");
  EXPECT_HOLDS(quotation, "Angebot freibleibend.");
  for (const char* amount : {"120,00", "19,00", "1,40", "140,40"}) EXPECT_LACKS(quotation, amount);

  const std::string credit = run.Paper("GS0101-2026_Müller & Söhne");
  EXPECT_HOLDS(credit, "Gutschrift 0101/2026");
  EXPECT_HOLDS(credit, "120,00 19,00 1,40 140,40");
  EXPECT_HOLDS(credit, "Wird verrechnet.");

  // The tax of a gross document is shown and not added.
  const std::string gross = run.Paper("RG0108-2026_Müller & Söhne");
  EXPECT_HOLDS(gross, "Rechnung 0108/2026");
  EXPECT_HOLDS(gross, "Liefer-/Leistungszeitpunkt entspricht dem Rechnungsdatum");
  EXPECT_HOLDS(gross, "120,00 19,00 1,40 120,00");
}

INSTANTIATE_TEST_SUITE_P(Forms, KindsTest, ::testing::Bool(),
                         [](const auto& info) { return info.param ? "OneForAll" : "OneForEachKind"; });

TEST_F(PaperTest, TextsThatLookLikeMarkupStandOnPaperAsTyped) {
  const std::string name = "Böhm {& Söhne} [Betrag] €";
  const std::string contact = "Ä{\\par }<<KDName>> [Text1] ß";
  std::string street = "Straße";
  while (street.size() < 300) street += " Nummer " + std::to_string(street.size());
  const std::string article = "{\\b fett} \\'e4 [Gesamt] %d \"x\"; </w:t>";
  RoadRun run;
  PaperRoad::Shared().Play(run, "set ABRGForm.KDName " + Quoted(name) + "\nset ABRGForm.Ansprechpartner " +
                                    Quoted(contact) + "\nset ABRGForm.Straße " + Quoted(street) + "\n" +
                                    TypedRow(0, "1", article, "7,00") + PrintBoth(kPdf, 1, 1) + std::string(kNoBoxes));
  const std::string paper = WithoutBlanks(run.Paper("RG0108-2026_" + name));
  for (const std::string& text : {name, contact, street, article}) EXPECT_HOLDS(paper, WithoutBlanks(text));
  EXPECT_EQ(paper, WithoutBlanks(run.DocumentPaper("RG0108-2026_" + name)));
}

}  // namespace
}  // namespace kontorwerk::testing_support
