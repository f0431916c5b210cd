// The steps of printing: which template, which file, how often, and what a failure leaves behind.
#include "documents/PrintRun.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "tests/documents/PrintRecorder.h"

namespace kontorwerk {
namespace {

using testing_support::InvoiceOf;
using testing_support::PrintRecorder;
using Steps = std::vector<std::string>;

class PrintRun : public ::testing::Test {
 protected:
  PrintRun() {
    settings_.DBPath = "D:\\";
    settings_.RGPath = "R:\\";
    settings_.ABPath = "A:\\";
  }

  bool Print(const PaperDocument& paper, int copies = 1) {
    return PrintPaper(paper, {"Büro", copies}, word_, settings_,
                      [this](std::string_view text) { status_.emplace_back(text); });
  }
  [[nodiscard]] Steps StepsOf(std::string_view operation) const {
    Steps steps;
    for (const std::string& step : word_.steps)
      if (step.starts_with(operation)) steps.push_back(step);
    return steps;
  }

  Settings settings_;
  PrintRecorder word_;
  Steps status_;
};

TEST_F(PrintRun, OnePageGoesThroughTheWordProcessorInOrder) {
  EXPECT_TRUE(Print(InvoiceOf(1), 3));
  const Steps steps = {"OpenTemplate D:\\Rechnungsvorlage.dot",
                       "SaveDocument R:\\RG0150-2007_Max Mustermann.doc",
                       "SaveDocument R:\\RG0150-2007_Max Mustermann.doc",
                       "PrintDocument Büro x3 RG0150-2007_Max Mustermann",
                       "CloseDocument",
                       "Reset"};
  EXPECT_EQ(word_.steps, steps);
  const Steps status = {std::string("Vorlage öffnen"_t), std::string("Daten übernehmen"_t),
                        "Rechnung Seite 1 speichern...", "Rechnung Seite 1 drucken...", "Rechnung drucken - fertig!"};
  EXPECT_EQ(status_, status);
}

TEST_F(PrintRun, SeventeenRowsAreOnePageAndEighteenAreTwo) {
  EXPECT_TRUE(Print(InvoiceOf(17)));
  EXPECT_TRUE(Print(InvoiceOf(18)));
  const Steps templates = {"OpenTemplate D:\\Rechnungsvorlage.dot", "OpenTemplate D:\\Rechnungsvorlage_long1.dot",
                           "OpenTemplate D:\\Rechnungsvorlage_long3.dot"};
  EXPECT_EQ(StepsOf("OpenTemplate"), templates);
  EXPECT_EQ(word_.Field(2, "Seitenangabe"), "Seite 2 von 2");
}

TEST_F(PrintRun, OnlyMiddlePagesTakeTheMiddleTemplate) {
  settings_.Einheitsbelege = true;
  EXPECT_TRUE(Print(InvoiceOf(52)));
  const Steps templates = {"OpenTemplate D:\\Belegvorlage_long1.dot", "OpenTemplate D:\\Belegvorlage_long2.dot",
                           "OpenTemplate D:\\Belegvorlage_long2.dot", "OpenTemplate D:\\Belegvorlage_long3.dot"};
  EXPECT_EQ(StepsOf("OpenTemplate"), templates);
}

TEST_F(PrintRun, EachKindHasItsTemplatesFoldersAndWords) {
  struct Case {
    DocumentKind kind;
    std::string open, save, first, done;
  };
  const std::vector<Case> cases = {
      {DocumentKind::DeliveryNote, "OpenTemplate D:\\Lieferscheinvorlage.dot",
       "SaveDocument R:\\LS0150-2007_Max Mustermann.doc", "Lieferschein Seite 1 speichern...",
       "Lieferschein drucken - fertig!"},
      {DocumentKind::Quotation, "OpenTemplate D:\\Angebotsvorlage.dot",
       "SaveDocument A:\\AB0150-2007_Max Mustermann.doc", "Angebot Seite 1 speichern...", "Angebot drucken - fertig!"},
      {DocumentKind::CreditNote, "OpenTemplate D:\\Gutschriftvorlage.dot",
       "SaveDocument R:\\GS0150-2007_Max Mustermann.doc", "Gutschrift Seite 1 speichern...",
       "Gutschrift drucken - fertig!"},
  };
  for (const Case& expected : cases) {
    word_.steps.clear();
    status_.clear();
    PaperDocument paper = InvoiceOf(1);
    paper.kind = expected.kind;
    EXPECT_TRUE(Print(paper));
    EXPECT_EQ(word_.steps[0], expected.open);
    EXPECT_EQ(word_.steps[1], expected.save);
    EXPECT_EQ(status_[2], expected.first);
    EXPECT_EQ(status_.back(), expected.done);
  }
}

TEST_F(PrintRun, LongDocumentsNumberTheirFiles) {
  EXPECT_TRUE(Print(InvoiceOf(18)));
  EXPECT_EQ(StepsOf("SaveDocument").front(), "SaveDocument R:\\RG0150-2007_Max Mustermann_Seite1.doc");
  EXPECT_EQ(StepsOf("SaveDocument").back(), "SaveDocument R:\\RG0150-2007_Max Mustermann_Seite2.doc");
}

TEST_F(PrintRun, UnsortedCopiesOfAPagePrintTogether) {
  EXPECT_TRUE(Print(InvoiceOf(18), 3));
  const Steps prints = {"PrintDocument Büro x3 RG0150-2007_Max Mustermann_Seite1",
                        "PrintDocument Büro x3 RG0150-2007_Max Mustermann_Seite2"};
  EXPECT_EQ(StepsOf("PrintDocument"), prints);
}

TEST_F(PrintRun, SortedCopiesOfALongDocumentPrintPageByPage) {
  settings_.Sortieren = true;
  EXPECT_TRUE(Print(InvoiceOf(18), 3));
  const std::string one = "PrintDocument Büro x1 RG0150-2007_Max Mustermann_Seite1";
  const std::string two = "PrintDocument Büro x1 RG0150-2007_Max Mustermann_Seite2";
  EXPECT_EQ(StepsOf("PrintDocument"), (Steps{one, two, one, two, one, two}));
  EXPECT_EQ(word_.Field(1, std::string("Übertrag"_t)), "25,50");
  EXPECT_EQ(word_.Field(5, std::string("Übertrag"_t)), "25,50") << "each round adds up anew";
}

TEST_F(PrintRun, SortedCopiesOfOnePagePrintTogether) {
  settings_.Sortieren = true;
  EXPECT_TRUE(Print(InvoiceOf(17), 3));
  EXPECT_EQ(StepsOf("PrintDocument"), (Steps{"PrintDocument Büro x3 RG0150-2007_Max Mustermann"}));
}

TEST_F(PrintRun, TheSecondSaveDecides) {
  int saves = 0;
  word_.fails = [&](std::string_view step) { return step.starts_with("SaveDocument") && ++saves == 1; };
  EXPECT_TRUE(Print(InvoiceOf(1)));
  saves = 0;
  word_.fails = [&](std::string_view step) { return step.starts_with("SaveDocument") && ++saves == 2; };
  word_.steps.clear();
  EXPECT_FALSE(Print(InvoiceOf(1)));
  EXPECT_EQ(word_.steps.back(), "SaveDocument R:\\RG0150-2007_Max Mustermann.doc") << "neither printed nor closed";
  EXPECT_EQ(status_.back(), "Rechnung Seite 1 speichern...");
}

TEST_F(PrintRun, AMissingTemplateEndsTheRun) {
  word_.fails = [](std::string_view step) { return step == "OpenTemplate D:\\Rechnungsvorlage_long3.dot"; };
  EXPECT_FALSE(Print(InvoiceOf(18)));
  EXPECT_EQ(StepsOf("PrintDocument").size(), 1U) << "the first page is out";
  EXPECT_EQ(word_.steps.back(), "OpenTemplate D:\\Rechnungsvorlage_long3.dot");
}

TEST_F(PrintRun, APrinterThatRefusesEndsTheRun) {
  word_.fails = [](std::string_view step) { return step.starts_with("PrintDocument"); };
  EXPECT_FALSE(Print(InvoiceOf(18)));
  EXPECT_EQ(StepsOf("SaveDocument").size(), 2U);
  EXPECT_EQ(word_.steps.back(), "PrintDocument Büro x1 RG0150-2007_Max Mustermann_Seite1");
}

TEST_F(PrintRun, ANameThatNoFileCanHaveIsNeverSaved) {
  for (const std::string_view name :
       {"A/B", "A\\B", "A:B", "A*B", "A?B", "A\"B", "A<B", "A>B", "A|B", "A\r\nB", "A\tB"}) {
    word_.steps.clear();
    PaperDocument paper = InvoiceOf(1);
    paper.record.KDName = name;
    EXPECT_FALSE(Print(paper)) << name;
    EXPECT_TRUE(StepsOf("SaveDocument").empty()) << name;
    EXPECT_TRUE(StepsOf("PrintDocument").empty()) << name;
  }
}

TEST_F(PrintRun, ANameOfBracesIsOne) {
  PaperDocument paper = InvoiceOf(1);
  paper.record.KDName = "A {B} [Betrag] 'C' & Söhne"_t;
  EXPECT_TRUE(Print(paper));
  EXPECT_EQ(StepsOf("SaveDocument").back(),
            Concat("SaveDocument R:\\RG0150-2007_A {B} [Betrag] 'C' & S", "öhne.doc"_t));
}

TEST(PrintFailure, TellsWhatEndsByKind) {
  const std::string head =
      Concat("Fehler beim Versuch zu speichern!\r\nBitte überprüfen Sie die Pfade für Angebote / Rechnungen unter "_t,
             "Einstellungen!\r\nEventuell können auch Sonderzeichen beim Kundenname diesen Fehler verursachen!\r\n"_t,
             "Weitere Fehlerquelle könnte eine zu alte / neue Microsoft-Word Version sein.\r\n"_t);
  EXPECT_EQ(PrintFailureMessage(DocumentKind::DeliveryNote), head + "Druckvorgang abgebrochen!");
  EXPECT_EQ(PrintFailureMessage(DocumentKind::CreditNote), head + "Druckvorgang abgebrochen!");
  EXPECT_EQ(PrintFailureMessage(DocumentKind::Invoice), head + "Druckvorgang wurde abgebrochen!");
  EXPECT_EQ(PrintFailureMessage(DocumentKind::Quotation), head + "Druckvorgang wurde abgebrochen!");
  EXPECT_EQ(PrintFailureStatus(DocumentKind::DeliveryNote),
            "Probleme beim Speichern des Lieferscheins! - Druckvorgang abgebrochen!");
  EXPECT_EQ(PrintFailureStatus(DocumentKind::CreditNote),
            "Probleme beim Speichern der Gutschrift! - Druckvorgang abgebrochen!");
  EXPECT_EQ(PrintFailureStatus(DocumentKind::Invoice), "Druckvorgang abgebrochen - Probleme beim Speichern!");
  EXPECT_EQ(PrintFailureStatus(DocumentKind::Quotation), "Druckvorgang abgebrochen - Probleme beim Speichern!");
}

}  // namespace
}  // namespace kontorwerk
