// Printing through a print system of the test's own, whose printer writes a file, and into a folder as PDF.
#include "platform/word/PrintSink.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <cstdlib>
#include <thread>

#include "platform/word/Office.h"
#include "platform/word/RtfTemplate.h"
#include "store/CodePage.h"
#include "store/Text.h"
#include "tests/word/WordSupport.h"

namespace kontorwerk {
namespace {

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

// A print system of our own on a free port, with one printer TEST that writes into a file.
class CupsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char* program : {"cupsd", "lp", "lpadmin", "lpinfo", "lpstat", "pdfinfo", "pdftotext"})
      NEEDS_PROGRAM(program);
    port_ = 20000 + getpid() % 20000;
    WriteConfiguration();
    Start();
    AddPrinter();
    if (IsSkipped()) return;
    setenv("CUPS_SERVER", Server().c_str(), 1);
  }
  void TearDown() override {
    unsetenv("CUPS_SERVER");
    if (!thread_.joinable()) return;
    if (pid_ > 0) kill(pid_, SIGTERM);
    thread_.join();
  }

  std::string Server() const { return "127.0.0.1:" + std::to_string(port_); }
  std::string Folder() const { return folder_.Path().string(); }
  std::string OutFile() const { return Folder() + "/out/test.pdf"; }

  void WriteConfiguration() {
    namespace fs = std::filesystem;
    for (const char* name : {"etc/ppd", "spool/tmp", "cache", "run/certs", "log", "out"})
      fs::create_directories(folder_.Path() / name);
    // The filters run under another user when the server runs as root.
    for (const char* name : {"", "out", "spool", "spool/tmp", "cache"})
      fs::permissions(folder_.Path() / name, fs::perms::all);
    folder_.Put("etc/cupsd.conf",
                "Listen " + Server() + "\nListen " + Folder() +
                    "/run/cups.sock\nBrowsing Off\nWebInterface No\nDefaultAuthType None\nLogLevel info\nMaxLogSize 0\n"
                    "<Location />\nOrder allow,deny\nAllow localhost\n</Location>\n"
                    "<Location /admin>\nOrder allow,deny\nAllow localhost\n</Location>\n"
                    "<Policy default>\n<Limit All>\nOrder deny,allow\n</Limit>\n</Policy>\n");
    std::string files = "FileDevice Yes\nSandboxing relaxed\n";
    const std::pair<const char*, const char*> places[] = {
        {"ServerRoot", "etc"},         {"RequestRoot", "spool"},   {"TempDir", "spool/tmp"},
        {"CacheDir", "cache"},         {"StateDir", "run"},        {"AccessLog", "log/access_log"},
        {"ErrorLog", "log/error_log"}, {"PageLog", "log/page_log"}};
    for (const auto& [key, place] : places) files += std::string(key) + " " + Folder() + "/" + place + "\n";
    if (geteuid() != 0) {
      const auto name = [](const char* option) {
        ProcessCall call;
        call.arguments = {FindProgram("id"), option};
        const std::string output = RunProcess(call).output;
        return output.substr(0, output.find('\n'));
      };
      files += "User " + name("-un") + "\nGroup " + name("-gn") + "\nSystemGroup " + name("-gn") + "\n";
    } else {
      files += "SystemGroup root lpadmin\n";
    }
    folder_.Put("etc/cups-files.conf", files);
  }

  ProcessResult Call(std::vector<std::string> arguments) const {
    arguments[0] = FindProgram(arguments[0], {"/usr/sbin", "/usr/bin"});
    ProcessCall call;
    call.arguments = std::move(arguments);
    call.environment = {"CUPS_SERVER=" + Server(), "LC_ALL=C.UTF-8"};
    return RunProcess(call);
  }

  void Start() {
    const std::string pidFile = Folder() + "/pid";
    thread_ = std::thread([this, pidFile] {
      ProcessCall call;
      call.arguments = {"/bin/sh",
                        "-c",
                        "echo $$ > \"$1\"; exec \"$2\" -f -c \"$3\" -s \"$4\"",
                        "sh",
                        pidFile,
                        FindProgram("cupsd", {"/usr/sbin"}),
                        Folder() + "/etc/cupsd.conf",
                        Folder() + "/etc/cups-files.conf"};
      call.limit = std::chrono::minutes(3);
      (void)RunProcess(call);
    });
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(15);
    while (Call({"lpstat", "-r"}).output.find("is running") == std::string::npos)
      if (std::chrono::steady_clock::now() > deadline) break;
    pid_ = std::stoi(ReadWholeFile(pidFile).value_or("0"));
  }

  void AddPrinter() {
    const std::string models = Call({"lpinfo", "-m"}).output;
    const std::size_t found = models.find("Generic-PDF_Printer-PDF");
    if (found == std::string::npos)
      GTEST_SKIP() << "no driver for a PDF printer (cups-filters): " << models.substr(0, 200);
    const std::size_t begin = models.rfind('\n', found) + 1;
    const std::string model = models.substr(begin, models.find(' ', begin) - begin);
    const ProcessResult added = Call({"lpadmin", "-p", "TEST", "-E", "-v", "file:" + OutFile(), "-m", model});
    ASSERT_EQ(added.exitCode, 0) << added.output;
  }

  // Waits until the printer has written its pages.
  bool WaitForPages() const {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(40);
    while (std::chrono::steady_clock::now() < deadline)
      if (Call({"lpstat", "-W", "completed", "-o"}).output.find("TEST-") != std::string::npos) return true;
    return false;
  }

  TestFolder folder_;
  std::thread thread_;
  pid_t pid_ = 0;
  int port_ = 0;
};

TEST_F(CupsTest, PagesCopiesAndTitleReachThePrinter) {
  CupsSink sink({.workFolder = Folder() + "/work"});
  const std::string_view title = "RG0150-2026_Müller & Söhne \"GmbH\""_t;
  ASSERT_EQ(sink.Print({OnePage(), "TEST", 3, title}), "");
  ASSERT_TRUE(WaitForPages());
  EXPECT_EQ(PagesOfPdf(OutFile()), 3);
  EXPECT_NE(TextOfPdf(OutFile()).find("Probeseite"), std::string::npos);
  const std::string log = ReadWholeFile(Folder() + "/log/page_log").value_or("");
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
  ASSERT_TRUE(WaitForPages());
  EXPECT_EQ(PagesOfPdf(OutFile()), 2);
  EXPECT_NE(TextOfPdf(OutFile()).find("Rechnung 0150/2026"), std::string::npos);
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
