// Printing that fails: the user is told, the record stays with its number, nothing that follows a print is done.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/road/PaperRoad.h"
#include "tests/word/WordSupport.h"

namespace kontorwerk::testing_support {
namespace {

constexpr std::string_view kPosition =
    "set ABRGForm.LGNr(0) \"#01001\"\nkey ABRGForm.LGNr(0) Ctrl+Enter\nset ABRGForm.S(0) \"3\"\n";

// What the user sees of an invoice that could not be printed.
constexpr std::string_view kFailed = R"(expect-boxes 1
expect-box "Fehler beim Versuch zu speichern!\r\nBitte überprüfen Sie die Pfade für Angebote / Rechnungen unter Einstellungen!\r\nEventuell können auch Sonderzeichen beim Kundenname diesen Fehler verursachen!\r\nWeitere Fehlerquelle könnte eine zu alte / neue Microsoft-Word Version sein.\r\nDruckvorgang wurde abgebrochen!"
expect ABRGForm.StatusBar1.panel(2) "Druckvorgang abgebrochen - Probleme beim Speichern!"
expect ABRGForm.ABRGNR "0108/2026"
expect ABRGForm.S(0).enabled true
)";

// The invoice is in its table, the goods are still in stock, and nobody owes anything.
void ExpectRecordAlone(const RoadRun& run) {
  const std::string invoices = run.File("daten/Rechnungendb.dbf");
  EXPECT_TRUE(invoices.starts_with("'1','0108/2026','16.11.2026','00100',")) << invoices;
  EXPECT_HOLDS(run.File("daten/LagerArtikeldb.dbf"), "'Kochbuch','35',");
  EXPECT_EQ(run.File("daten/offeneBelegedb.dbf"), "");
}

TEST_F(PrinterTest, APrinterThatDoesNotExistFailsAndTheRecordStays) {
  RoadRun run;
  PaperRoad::Shared().Play(run, std::string(kPosition) + PrintBoth("Bürodrucker", 1, 1) + std::string(kFailed) +
                                    "get ABRGForm.StatusBar1.panel(4)\n");
  ExpectRecordAlone(run);
  EXPECT_HOLDS(run.Output(), "Der Drucker „Bürodrucker“ ist dem Drucksystem nicht bekannt");
  EXPECT_EQ(run.Papers(), std::vector<std::string>{"RG0108-2026_Müller & Söhne.doc"});
}

// Kept: the second attempt is a change of a saved invoice, and a change moves no goods.
TEST_F(PrinterTest, TheSecondAttemptPrintsTheSameNumberAndMovesNoGoods) {
  const int before = Cups().FinishedJobs();
  RoadRun run;
  PaperRoad::Shared().Play(run, std::string(kPosition) + PrintBoth("Bürodrucker", 1, 1) + std::string(kFailed) +
                                    "answer printer \"TEST\" 1\nclick ABRGForm.Command1\nexpect-boxes 1\n"
                                    "expect ABRGForm.S(0).enabled false\n");
  ASSERT_TRUE(Cups().WaitForJobs(before + 1));
  EXPECT_HOLDS(TextOfPdf(Cups().OutFile()), "Rechnung 0108/2026");
  EXPECT_LACKS(run.File("daten/Rechnungendb.dbf"), "0109/2026");
  EXPECT_HOLDS(run.File("daten/LagerArtikeldb.dbf"), "'Kochbuch','35',");
  EXPECT_TRUE(run.File("daten/offeneBelegedb.dbf").starts_with("'RG','0108/2026',"));
}

TEST(FailureRoad, ALibreOfficeThatDoesNotStartFailsAndTheDocumentIsSaved) {
  const TestFolder programs;
  Script(programs, "soffice", "exit 1");
  RoadRun run;
  PaperRoad::Shared().Play(run, std::string(kPosition) + PrintBoth("PDF-Datei", 1, 1) + std::string(kFailed),
                           {.firstInPath = programs.Path().string()});
  ExpectRecordAlone(run);
  EXPECT_EQ(run.Papers(), std::vector<std::string>{"RG0108-2026_Müller & Söhne.doc"});
}

TEST(FailureRoad, ANameThatNoFileCanHaveFailsAndTheRecordStays) {
  for (const std::string& name : {std::string(300, 'x'), std::string("Meier / Huber: \\\\ <<x>>")}) {
    RoadRun run;
    PaperRoad::Shared().Play(run, "set ABRGForm.KDName " + Quoted(name) + "\n" + std::string(kPosition) +
                                      PrintBoth("PDF-Datei", 1, 1) + std::string(kFailed));
    ExpectRecordAlone(run);
    EXPECT_HOLDS(run.File("daten/Rechnungendb.dbf"), "'00100','" + name + "',");
    EXPECT_TRUE(run.Papers().empty());
  }
}

}  // namespace
}  // namespace kontorwerk::testing_support
