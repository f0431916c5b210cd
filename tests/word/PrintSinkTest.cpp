// Printing through a print system of the test's own, whose printer writes a file, and into a folder as PDF.
#include "platform/word/PrintSink.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include "platform/word/Office.h"
#include "platform/word/RtfTemplate.h"
#include "store/CodePage.h"
#include "store/Text.h"
#include "tests/word/CupsServer.h"
#include "tests/word/WordSupport.h"

namespace kontorwerk {
namespace {

using testing_support::CupsServer;
using testing_support::PagesOfPdf;
using testing_support::Script;
using testing_support::TestFolder;
using testing_support::TextOfPdf;

// A small PDF document of one page with the text "Probeseite".
std::string OnePage() {
  const std::string content = "BT /F1 24 Tf 72 700 Td (Probeseite) Tj ET";
  const std::vector<std::string> objects = {
      "<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Kids[3 0 R]/Count 1>>",
      "<</Type/Page/Parent 2 0 R/MediaBox[0 0 595 842]/Contents 4 0 R/Resources<</Font<</F1 5 0 R>>>>>>",
      "<</Length " + std::to_string(content.size()) + ">>stream\n" + content + "\nendstream",
      "<</Type/Font/Subtype/Type1/BaseFont/Helvetica>>"};
  std::string pdf = "%PDF-1.4\n";
  std::string table = "xref\n0 6\n0000000000 65535 f \n";
  for (std::size_t i = 0; i < objects.size(); ++i) {
    const std::string offset = std::to_string(pdf.size());
    table += std::string(10 - offset.size(), '0') + offset + " 00000 n \n";
    pdf += std::to_string(i + 1) + " 0 obj" + objects[i] + "endobj\n";
  }
  const std::string start = std::to_string(pdf.size());
  return pdf + table + "trailer<</Size 6/Root 1 0 R>>\nstartxref\n" + start + "\n%%EOF\n";
}

class CupsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* program : {"pdfinfo", "pdftotext"}) NEEDS_PROGRAM(program);
    if (!cups_.Missing().empty()) GTEST_SKIP() << cups_.Missing();
    ASSERT_EQ(cups_.Error(), "");
    setenv("CUPS_SERVER", cups_.Address().c_str(), 1);
  }
  void TearDown() override { unsetenv("CUPS_SERVER"); }

  std::string Folder() const { return cups_.Folder(); }

  CupsServer cups_;
};

TEST_F(CupsTest, PagesCopiesAndTitleReachThePrinter) {
  CupsSink sink({.workFolder = Folder() + "/work"});
  const std::string_view title = "RG0150-2026_Müller & Söhne \"GmbH\""_t;
  ASSERT_EQ(sink.Print({OnePage(), "TEST", 3, title}), "");
  ASSERT_TRUE(cups_.WaitForJobs(1));
  EXPECT_EQ(PagesOfPdf(cups_.OutFile()), 3);
  EXPECT_NE(TextOfPdf(cups_.OutFile()).find("Probeseite"), std::string::npos);
  const std::string log = cups_.PageLog();
  EXPECT_NE(log.find("total 3"), std::string::npos) << log;
  EXPECT_NE(log.find("RG0150-2026_"), std::string::npos) << log;
  EXPECT_TRUE(std::filesystem::is_empty(Folder() + "/work"));
}

TEST_F(CupsTest, TheSystemsPrintersAreListed) { EXPECT_EQ(PrinterNames(), std::vector<std::string>{"TEST"}); }

TEST_F(CupsTest, AnUnknownPrinterIsNamedInTheError) {
  CupsSink sink({.workFolder = Folder() + "/work"});
  const std::string error = ToUtf8(sink.Print({OnePage(), "Bürodrucker"_t, 1, "x"}));
  EXPECT_TRUE(error.starts_with("Der Drucker „Bürodrucker“ ist dem Drucksystem nicht bekannt")) << error;
}

TEST_F(CupsTest, AFilledTemplateComesOutOfThePrinter) {
  NEEDS_PROGRAM("soffice");
  FieldValues values;
  values.Set(TextArea::Body, "Rechnungsnummer", "0150/2026");
  Office office({.cacheFolder = Folder() + "/office"});
  const RenderedDocument rendered =
      office.Render(RtfTemplate(testing_support::Template("Rechnungsvorlage.dot")).Fill(values));
  ASSERT_EQ(rendered.error, "");
  CupsSink sink({.workFolder = Folder() + "/work"});
  ASSERT_EQ(sink.Print({rendered.pdf, "TEST", 2, "Rechnung"}), "");
  ASSERT_TRUE(cups_.WaitForJobs(1));
  EXPECT_EQ(PagesOfPdf(cups_.OutFile()), 2);
  EXPECT_NE(TextOfPdf(cups_.OutFile()).find("Rechnung 0150/2026"), std::string::npos);
}

TEST(CupsSink, ArgumentsReachTheSystemAsTheyAre) {
  const TestFolder folder;
  const std::string script =
      Script(folder, "lp", "for a in \"$@\"; do printf '%s|' \"$a\"; done > \"$(dirname \"$0\")/seen\"");
  CupsSink sink({.workFolder = folder.Path().string() + "/work", .printProgram = script});
  EXPECT_EQ(sink.Print({"%PDF", "-d $(id)", 0, "-t \"x\"; rm `y`"}), "");
  const std::string seen = folder.Content("seen").value_or("");
  EXPECT_TRUE(seen.starts_with("-n|1|-d|-d $(id)|-t|-t \"x\"; rm `y`|--|")) << seen;
}

TEST(CupsSink, WithoutAPrinterTheSystemsOwnIsUsed) {
  const TestFolder folder;
  const std::string script = Script(folder, "lp", "printf '%s' \"$*\" > \"$(dirname \"$0\")/seen\"");
  CupsSink sink({.workFolder = folder.Path().string() + "/work", .printProgram = script});
  EXPECT_EQ(sink.Print({"%PDF", "", 2, "x"}), "");
  EXPECT_TRUE(folder.Content("seen").value_or("").starts_with("-n 2 -t x -- "));
}

TEST(CupsSink, AMissingOrHungPrintSystemIsAnErrorInPlainWords) {
  const TestFolder folder;
  const std::string work = folder.Path().string() + "/work";
  CupsSink missing({.workFolder = work, .printProgram = "/nowhere/lp"});
  EXPECT_TRUE(missing.Print({"%PDF", "TEST", 1, "x"}).starts_with("Das Drucksystem CUPS ist nicht installiert"));
  CupsSink hung({.workFolder = work,
                 .printProgram = Script(folder, "lp", "while true; do sleep 1; done"),
                 .limit = std::chrono::milliseconds(300)});
  EXPECT_EQ(hung.Print({"%PDF", "TEST", 1, "x"}), "Das Drucksystem hat nicht rechtzeitig geantwortet.");
  EXPECT_TRUE(std::filesystem::is_empty(work));
}

class PdfFileSinkTest : public ::testing::Test {
 protected:
  TestFolder folder_;
  std::unique_ptr<Disk> disk_ = MakeSystemDisk();
  FileSystemObject files_{*disk_};
};

TEST_F(PdfFileSinkTest, TheTitleNamesTheFile) {
  PdfFileSink sink(files_, folder_.DataPath(), false);
  EXPECT_EQ(sink.Print({"%PDF one", "", 3, "RG 1/2: \"x\""}), "");
  EXPECT_EQ(folder_.Content("RG 1_2_ _x_.pdf"), "%PDF one");
  EXPECT_EQ(sink.Print({"%PDF two", "", 1, "RG 1/2: \"x\""}), "");
  EXPECT_EQ(folder_.Content("RG 1_2_ _x_.pdf"), "%PDF two");
  EXPECT_EQ(folder_.Names().size(), 1U);
}

TEST_F(PdfFileSinkTest, OthersAreKeptWhereAskedFor) {
  for (int i = 0; i < 3; ++i) {
    PdfFileSink sink(files_, folder_.DataPath(), true);
    EXPECT_EQ(sink.Print({"%PDF", "", 1, "Brief"}), "");
  }
  EXPECT_EQ(folder_.Names(), (std::vector<std::string>{"Brief (2).pdf", "Brief (3).pdf", "Brief.pdf"}));
}

TEST_F(PdfFileSinkTest, AFolderThatDoesNotExistIsAnError) {
  PdfFileSink sink(files_, folder_.DataPath("missing") + "\\", false);
  EXPECT_NE(sink.Print({"%PDF", "", 1, "Brief"}).find("konnte nicht gespeichert werden"), std::string::npos);
}

}  // namespace
}  // namespace kontorwerk
