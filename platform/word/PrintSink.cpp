// Printing through the commands of CUPS, and PDF files.
#include "platform/word/PrintSink.h"

#include "platform/WordXChange.h"
#include "platform/word/Processes.h"
#include "store/CodePage.h"
#include "store/Text.h"

#include <algorithm>
#include <utility>

namespace kontorwerk {

namespace {

constexpr std::string_view kNoPrintSystem = "Das Drucksystem CUPS ist nicht installiert (der Befehl „lp“ fehlt)."_t;
constexpr std::string_view kPrintTooSlow = "Das Drucksystem hat nicht rechtzeitig geantwortet."_t;
constexpr std::string_view kNoTemporaryFile =
    "Die Druckdatei konnte nicht angelegt werden. Bitte prüfen Sie, ob auf der Festplatte noch Platz ist."_t;

std::string RefusedText(std::string_view printer, const std::string& output) {
  const std::string name = printer.empty() ? "Der Standarddrucker" : Concat("Der Drucker „"_t, printer, "“"_t);
  const std::string_view answer = Trim(std::string_view(output).substr(0, output.find('\n')));
  const std::string reason = answer.empty() ? "" : Concat(" (", FromUtf8(answer).value_or(""), ")");
  return Concat(name, " ist dem Drucksystem nicht bekannt oder nimmt keine Aufträge an"_t, reason, ".");
}

std::string FileNameOf(std::string_view title) {
  std::string name(title.empty() ? std::string_view("Dokument") : title);
  for (char& c : name)
    if (!ValidFileName(std::string_view(&c, 1))) c = '_';
  return name;
}

}  // namespace

CupsSink::CupsSink(CupsSetup setup) : setup_(std::move(setup)) { TemporaryFolder::RemoveLeftovers(setup_.workFolder); }

std::string CupsSink::Print(const PrintJob& job) {
  const std::string program = FindProgram(setup_.printProgram, {"/usr/bin", "/usr/local/bin"});
  if (program.empty()) return std::string(kNoPrintSystem);
  const TemporaryFolder folder(setup_.workFolder);
  const std::string file = folder.Path() + "/seiten.pdf";
  if (folder.Path().empty() || !WriteWholeFile(file, job.pdf)) return std::string(kNoTemporaryFile);

  ProcessCall call;
  call.arguments = {program, "-n", std::to_string(std::max(job.copies, 1))};
  if (!job.printer.empty()) call.arguments.insert(call.arguments.end(), {"-d", ToUtf8(job.printer)});
  if (!job.title.empty()) call.arguments.insert(call.arguments.end(), {"-t", ToUtf8(job.title)});
  call.arguments.insert(call.arguments.end(), {"--", file});
  call.environment = {"LC_ALL=C.UTF-8"};
  call.limit = setup_.limit;
  const ProcessResult result = RunProcess(call);
  if (result.end == ProcessEnd::TimedOut) return std::string(kPrintTooSlow);
  if (result.end == ProcessEnd::Exited && result.exitCode == 0) return {};
  return RefusedText(job.printer, result.output);
}

std::vector<std::string> PrinterNames() {
  const std::string program = FindProgram("lpstat", {"/usr/bin", "/usr/local/bin"});
  std::vector<std::string> names;
  if (program.empty()) return names;
  ProcessCall call;
  call.arguments = {program, "-e"};
  call.environment = {"LC_ALL=C.UTF-8"};
  call.limit = std::chrono::seconds(5);
  const ProcessResult result = RunProcess(call);
  if (result.end != ProcessEnd::Exited || result.exitCode != 0) return names;
  for (const std::string_view line : Split(result.output, "\n"))
    if (auto name = FromUtf8(Trim(line)); name && !name->empty()) names.push_back(std::move(*name));
  return names;
}

PdfFileSink::PdfFileSink(const FileSystemObject& files, std::string folder, bool keepOthers)
    : files_(files), folder_(std::move(folder)), keepOthers_(keepOthers) {}

std::string PdfFileSink::Print(const PrintJob& job) {
  const std::string stem = Concat(folder_, FileNameOf(job.title));
  std::string path = stem + ".pdf";
  for (int number = 2; keepOthers_ && files_.Exists(path); ++number)
    path = Concat(stem, " (", std::to_string(number), ").pdf");
  if (!files_.Write(path, job.pdf)) return Concat("Die PDF-Datei ", path, " konnte nicht gespeichert werden.");
  lastPath_ = path;
  return {};
}

}  // namespace kontorwerk
