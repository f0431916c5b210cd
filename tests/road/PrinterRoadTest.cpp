// Documents on a printer: what comes out of it, how many copies, in which order, and what lies in the tables and the
// documents' folder afterwards.
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/road/PaperRoad.h"
#include "tests/word/WordSupport.h"

namespace kontorwerk::testing_support {
namespace {

// By stock number, by article number, by scanner; the last brings a second line along.
constexpr std::string_view kPositions = R"(set ABRGForm.LGNr(0) "#01001"
key ABRGForm.LGNr(0) Ctrl+Enter
set ABRGForm.S(0) "3"
set ABRGForm.ArtNr(1) "DIE00001"
key ABRGForm.ArtNr(1) Ctrl+Enter
set ABRGForm.S(1) "2,5"
set ABRGForm.LGNr(2) "4000000000024"
key ABRGForm.LGNr(2) Enter
set ABRGForm.S(2) "2"
)";

// What the printer has written of late: a line a job as "title pages".
std::vector<std::string> PrintedSince(const std::string& log, std::size_t start) {
  std::vector<std::string> jobs;
  std::size_t begin = start;
  while (begin < log.size()) {
    const std::size_t end = std::min(log.find('\n', begin), log.size());
    const std::string line = log.substr(begin, end - begin);
    begin = end + 1;
    const std::size_t total = line.find(" total ");
    const std::size_t title = line.find("RG0");
    if (total == std::string::npos || title == std::string::npos) continue;
    const std::size_t page = line.find("Seite", title);
    const std::string place = page == std::string::npos ? "Seite" : line.substr(page, line.find(' ', page) - page);
    jobs.push_back(place + " " + line.substr(total + 7, line.find(' ', total + 7) - total - 7));
  }
  return jobs;
}

// A document of that many rows, its copies on the printer, and what came out.
std::vector<std::string> PrintCopies(int rows, int copies, bool collate, int jobs) {
  CupsServer& cups = PaperRoad::Shared().Cups();
  const int before = cups.FinishedJobs();
  const std::size_t logBefore = cups.PageLog().size();
  std::string steps = "click ABRGForm.Command10\n";
  for (int row = 0; row < rows; row += row == 0 ? rows - 1 : 1) steps += TypedRow(row, "1", "Zeile", "2,50");
  RoadRun run;
  PaperRoad::Shared().Play(run, steps + PrintBoth("TEST", copies, 1) + "expect-boxes 0\n",
                           {.firm = {.collate = collate}});
  EXPECT_TRUE(cups.WaitForJobs(before + jobs));
  return PrintedSince(cups.PageLog(), logBefore);
}

TEST_F(PrinterTest, DeliveryNoteAndInvoiceComeOutOfThePrinterWithTheirTablesWritten) {
  const int before = Cups().FinishedJobs();
  RoadRun run;
  PaperRoad::Shared().Play(run, std::string(kPositions) + PrintBoth("TEST", 1, 0) + "expect-boxes 0\n");
  ASSERT_TRUE(Cups().WaitForJobs(before + 2));

  const std::string note = TextOfPdf(Cups().JobFile(before + 1));
  EXPECT_HOLDS(note, "Lieferschein 0106/2026");
  EXPECT_HOLDS(note, "Bitte prüfen.");
  const std::string invoice = TextOfPdf(Cups().OutFile());
  EXPECT_HOLDS(invoice, "Rechnung 0108/2026");
  EXPECT_HOLDS(invoice, "Lieferschein-Nr.: 0106/2026");
  for (const std::string& paper : {note, invoice}) {
    EXPECT_HOLDS(paper, "#01001 BUC00001 3 Kochbuch 36,80 110,40*");
    EXPECT_HOLDS(paper, "DIE00001 2,5 Aufmaß vor Ort 68,90 172,25");
    EXPECT_HOLDS(paper, "#01002 LIC00001 2 Leuchte weiß 174,90 349,80\nmit Netzteil");
    EXPECT_HOLDS(paper, "MwSt. 19 % EUR MwSt. 7 % (*) EUR");
    EXPECT_HOLDS(paper, "632,45 99,19 7,73 739,37");
    EXPECT_HOLDS(paper, "Firma\nMüller & Söhne\nHauptstr. 1\n78000 Musterstadt");
    EXPECT_HOLDS(paper, "Seite 1 von 1");
  }
  EXPECT_EQ(run.Papers(),
            (std::vector<std::string>{"LS0106-2026_Müller & Söhne.doc", "RG0108-2026_Müller & Söhne.doc"}));
  EXPECT_EQ(run.DocumentPaper("LS0106-2026_Müller & Söhne"), note);
  EXPECT_EQ(run.DocumentPaper("RG0108-2026_Müller & Söhne"), TextOfPdf(Cups().JobFile(before + 2)));
}

TEST_F(PrinterTest, UnsortedTheCopiesOfEachPageComeTogether) {
  EXPECT_EQ(PrintCopies(18, 2, false, 2), (std::vector<std::string>{"Seite1 2", "Seite2 2"}));
}

TEST_F(PrinterTest, SortedTheWholeDocumentComesAgain) {
  EXPECT_EQ(PrintCopies(18, 2, true, 4), (std::vector<std::string>{"Seite1 1", "Seite2 1", "Seite1 1", "Seite2 1"}));
}

TEST_F(PrinterTest, TheCopiesOfOnePageAreOneJobWhereSorted) {
  EXPECT_EQ(PrintCopies(17, 2, true, 1), std::vector<std::string>{"Seite 2"});
}

}  // namespace
}  // namespace kontorwerk::testing_support
