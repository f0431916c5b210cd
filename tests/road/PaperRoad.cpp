#include "tests/road/PaperRoad.h"

#include <algorithm>
#include <cstdlib>
#include <memory>

#include "platform/word/Processes.h"
#include "store/CodePage.h"
#include "tests/word/WordSupport.h"

namespace kontorwerk::testing_support {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kFirm = R"(now 16.11.2026 09:30:00
write daten/Rechnungendb.dbf "'short','0107/2026','02.01.2026 ','','Datenbank Nummernupdate - Kontorwerk-System\r\n"
write daten/Angebotedb.dbf "'short','0103/2026','02.01.2026 ','','Datenbank Nummernupdate - Kontorwerk-System\r\n"
write daten/Lieferscheinedb.dbf "'short','0105/2026','02.01.2026 ','','Datenbank Nummernupdate - Kontorwerk-System\r\n"
write daten/Gutschriftendb.dbf "'short','0100/2026','02.01.2026 ','','Datenbank Nummernupdate - Kontorwerk-System\r\n"
write daten/Kundendb.dbf "'00100','Müller & Söhne','Hauptstr. 1','78000','Musterstadt','','','','','','','','','','','','','','','','','','','','','','','','','Firma','01.02.2026\r\n"
write daten/Artikeldb.dbf "'DIE00001','Aufmaß','Aufmaß vor Ort','','','','0','Falsch','Wahr','Std.','','','','','','','','','','','','','','','68,90','0','81,99','01.01.2026','\r\n"
write daten/LagerArtikeldb.dbf "'#01001','BUC00001','Kochbuch','35','','','','','4000000000017','','','Kochbuch','','','','Stück','','','','','','','','','','','','','','','30,00','36,80','39,38','1','0','Wareneingang am 02.02.2026\r\n'#01002','LIC00001','Leuchte','10','','','','','4000000000024','','','Leuchte weiß','mit Netzteil','','','Stück','','','','','','','','','','','','','','','90,00','174,90','208,13','0','0','Wareneingang am 02.02.2026\r\n"
start
click StartForm.Command3
click StartForm.Command8
click KDsuchen.Command1
select KDsuchen.Suchergebnis 1
click KDsuchen.Command3
)";

std::string Settings(const RoadFirm& firm) {
  return std::string(
             "write config.txt \"MWSTSatz=19\\r\\nMWSTSatz2=7\\r\\nRGPath=belege\\\\\\r\\nABPath=belege\\\\\\r\\n") +
         "DBPath=daten\\\\\\r\\nRGZahlungsweise=Zahlbar sofort.\\r\\nLFText1=Bitte prüfen.\\r\\n" +
         "ABText1=Angebot freibleibend.\\r\\nGSZahlungsweise=Wird verrechnet.\\r\\n" +
         "FirmenAbsender=Papierhaus, Ufer 1, 10115 "
         "Berlin\\r\\nFirmenAdresse1=Papierhaus\\r\\nBankdaten1=Ufer-Bank\\r\\n" +
         "Steuernummer=11/222\\r\\nSortieren=" + (firm.collate ? "Wahr" : "Falsch") +
         "\\r\\nEinheitsbelege=" + (firm.oneFormForAll ? "Wahr" : "Falsch") + "\\r\\n\"\n";
}

std::unique_ptr<PaperRoad>& Holder() {
  static std::unique_ptr<PaperRoad> road;
  return road;
}

class RoadEnvironment final : public ::testing::Environment {
 public:
  void TearDown() override { PaperRoad::Close(); }
};

[[maybe_unused]] const auto* const kEnvironment = ::testing::AddGlobalTestEnvironment(new RoadEnvironment);

}  // namespace

std::string RoadRun::File(const std::string& name) const { return ToUtf8(folder_.Content(name).value_or("")); }

std::vector<std::string> RoadRun::Papers() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder_.Path() / "belege"))
    names.push_back(entry.path().filename().string());
  std::sort(names.begin(), names.end());
  return names;
}

std::string RoadRun::Paper(const std::string& name) const { return TextOfPdf(Path("belege/" + name + ".pdf")); }

std::string RoadRun::DocumentPaper(const std::string& name) const {
  const TestFolder work;
  ProcessCall call;
  call.arguments = {FindProgram("soffice"),
                    "-env:UserInstallation=file://" + PaperRoad::Shared().CacheFolder() + "/reader",
                    "--headless",
                    "--norestore",
                    "--convert-to",
                    "pdf",
                    "--outdir",
                    work.Path().string(),
                    Path("belege/" + name + ".doc")};
  call.environment = {"LC_ALL=C.UTF-8"};
  call.limit = std::chrono::seconds(60);
  (void)RunProcess(call);
  return TextOfPdf((work.Path() / (name + ".pdf")).string());
}

std::vector<std::string> RoadRun::Words(std::string_view operation, std::string_view key) const {
  const std::string event = "\"event\": \"word\", \"op\": \"" + std::string(operation) + "\"";
  const std::string mark = "\"" + std::string(key) + "\": ";
  std::vector<std::string> values;
  for (std::size_t at = output_.find(event); at != std::string::npos; at = output_.find(event, at + 1)) {
    const std::string line = output_.substr(at, output_.find('\n', at) - at);
    const std::size_t begin = line.find(mark);
    if (begin == std::string::npos) continue;
    std::string value = line.substr(begin + mark.size());
    value =
        value.starts_with('"') ? value.substr(1, value.find('"', 1) - 1) : value.substr(0, value.find_first_of(",}"));
    values.push_back(std::move(value));
  }
  return values;
}

PaperRoad& PaperRoad::Shared() {
  if (!Holder()) Holder() = std::make_unique<PaperRoad>();
  return *Holder();
}

void PaperRoad::Close() { Holder().reset(); }

void PaperRoad::Play(RoadRun& run, std::string_view steps, const RoadPlay& play) {
  fs::create_directories(run.folder_.Path() / "belege");
  fs::copy(TemplatesFolder(), run.folder_.Path() / "daten");
  run.folder_.Put("steps.op", Settings(play.firm) + std::string(kFirm) + std::string(steps));
  ProcessCall call;
  call.arguments = {KONTORWERK_OPERATOR, "--program-folder", run.folder_.Path().string()};
  if (play.mode == RoadMode::WindowsAndPaper)
    call.arguments.insert(call.arguments.end(), {"--screens", "qt", "--print"});
  call.arguments.push_back(run.Path("steps.op"));
  call.environment = {"CUPS_SERVER=" + cups_.Address(), "XDG_CACHE_HOME=" + CacheFolder(), "QT_QPA_PLATFORM=offscreen",
                      "LC_ALL=C.UTF-8"};
  const char* path = std::getenv("PATH");
  if (!play.firstInPath.empty()) call.environment.push_back("PATH=" + play.firstInPath + ":" + (path ? path : ""));
  call.limit = std::chrono::minutes(2);
  // The record of a long document is longer than what is kept of an output.
  const std::string record = run.Path("record.txt");
  call.arguments.insert(call.arguments.begin(),
                        {"/bin/sh", "-c", "record=$1; shift; exec \"$@\" >\"$record\"", "sh", record});
  const ProcessResult result = RunProcess(call);
  run.exitCode_ = result.exitCode;
  run.output_ = ReadWholeFile(record).value_or("");
  EXPECT_EQ(result.exitCode, 0) << result.output
                                << run.output_.substr(run.output_.size() > 2000 ? run.output_.size() - 2000 : 0);
}

std::string Quoted(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') result += '\\';
    result += c;
  }
  return result + "\"";
}

std::string TypedRow(int row, std::string_view quantity, std::string_view text, std::string_view price) {
  const std::string index = "(" + std::to_string(row) + ") ";
  const auto step = [&index](std::string_view field, std::string_view value) {
    return "set ABRGForm." + std::string(field) + index + Quoted(value) + "\n";
  };
  std::string steps = step("B", text);
  if (!quantity.empty()) steps += step("S", quantity);
  if (!price.empty()) steps += step("E", price);
  return steps;
}

std::string PrintBoth(std::string_view printer, int copies, int choice, bool withoutPrices) {
  return "focus ABRGForm.Text1\nanswer printer " + Quoted(printer) + " " + std::to_string(copies) +
         "\nclick ABRGForm.Command1\nchoose LFRGForm.Combo " + std::to_string(choice) + "\n" +
         (withoutPrices ? "click LFRGForm.Check1\n" : "") + "click LFRGForm.OKButton\n";
}

std::string WithoutBlanks(std::string_view text) {
  std::string result;
  for (const char c : text)
    if (c != ' ' && c != '\n' && c != '\r' && c != '\f') result += c;
  return result;
}

void PaperTest::SetUp() {
  for (const char* program : {"soffice", "pdftotext", "pdfinfo"}) NEEDS_PROGRAM(program);
}

void PrinterTest::SetUp() {
  PaperTest::SetUp();
  if (IsSkipped()) return;
  if (!Cups().Missing().empty()) GTEST_SKIP() << Cups().Missing();
  ASSERT_EQ(Cups().Error(), "");
}

}  // namespace kontorwerk::testing_support
