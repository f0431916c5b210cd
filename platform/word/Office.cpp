// The profile, the processes and the job files of LibreOffice; the macro itself lies in OfficeMacro.h.
#include "platform/word/Office.h"

#include "platform/word/OfficeMacro.h"
#include "platform/word/Processes.h"
#include "store/CodePage.h"
#include "store/Text.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <functional>
#include <utility>

namespace kontorwerk {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kMissing =
    "LibreOffice wurde nicht gefunden. Zum Drucken von Dokumenten und für Vorlagen im Word-Format muss "
    "LibreOffice Writer installiert sein."_t;
constexpr std::string_view kTooSlow =
    "LibreOffice hat nicht rechtzeitig geantwortet und wurde beendet. Bitte versuchen Sie es noch einmal."_t;
constexpr std::string_view kNoProfile =
    "LibreOffice konnte nicht vorbereitet werden. Bitte prüfen Sie, ob es gestartet werden kann und ob auf der "
    "Festplatte noch Platz ist."_t;
constexpr std::string_view kNotConverted = "LibreOffice konnte das Dokument nicht verarbeiten."_t;
constexpr std::string_view kUnknownFormat =
    "Die Datei ist weder ein Word-Dokument noch ein OpenDocument- oder RTF-Dokument."_t;

std::string FileUrl(const std::string& path) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string url = "file://";
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    if (byte < 0x80 && (std::isalnum(byte) != 0 || std::string_view("/-._~").find(c) != std::string_view::npos))
      url += c;
    else
      url.append({'%', kDigits[byte / 16], kDigits[byte % 16]});
  }
  return url;
}

std::string XmlEscaped(std::string_view text) {
  return Replace(Replace(Replace(Replace(text, "&", "&amp;"), "<", "&lt;"), ">", "&gt;"), "\"", "&quot;");
}

// A value in the job file: one line, breaks and tabs as the macro expects them, no other control character.
std::string JobValue(std::string_view text) {
  std::string line;
  for (const char c : Replace(text, kLineEnd, "\n")) {
    if (c == '\n' || c == '\r')
      line += '\x01';
    else if (c == '\t')
      line += '\x02';
    else if (static_cast<unsigned char>(c) >= 0x20)
      line += c;
  }
  return ToUtf8(line);
}

std::string JobText(const std::string& folder, const FieldValues& values) {
  std::string job = Concat("load\t", FileUrl(folder + "/template"), "\ndoc\t", FileUrl(folder + "/filled.doc"),
                           "\npdf\t", FileUrl(folder + "/filled.pdf"), "\n");
  constexpr std::array<std::pair<TextArea, char>, 3> kAreas = {
      {{TextArea::Body, '0'}, {TextArea::Header, '1'}, {TextArea::Footer, '2'}}};
  for (const auto& [area, digit] : kAreas)
    for (const auto& [key, value] : values.Of(area))
      job += Concat("field\t", std::string(1, digit), "\t", JobValue(key), "\t", JobValue(value), "\n");
  return job;
}

// The settings of the profile. Without the version of the last set-up every start would test the graphics for nearly
// a second; lock files would stay beside the documents; macros of documents never run.
std::string ProfileSettings(std::string_view version) {
  struct Setting {
    std::string_view path, name, value;
  };
  const std::array<Setting, 8> settings = {
      {{"/org.openoffice.Setup/Product", "ooSetupLastVersion", version},
       {"/org.openoffice.Office.Common/Misc", "FirstRun", "false"},
       {"/org.openoffice.Office.Common/Misc", "UseLocking", "false"},
       {"/org.openoffice.Office.Common/Misc", "UseDocumentSystemFileLocking", "false"},
       {"/org.openoffice.Office.Common/Misc", "UseDocumentOOoLockFile", "false"},
       {"/org.openoffice.Office.Common/Security/Scripting", "DisableMacrosExecution", "false"},
       {"/org.openoffice.Office.Common/Security/Scripting", "MacroSecurityLevel", "3"},
       {"/org.openoffice.Office.Java/VirtualMachine", "Enable", "false"}}};
  std::string xml =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<oor:items xmlns:oor=\"http://openoffice.org/2001/registry\" "
      "xmlns:xs=\"http://www.w3.org/2001/XMLSchema\" xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\">\n";
  for (const Setting& setting : settings)
    xml += Concat("<item oor:path=\"", setting.path, "\"><prop oor:name=\"", setting.name, "\" oor:op=\"fuse\"><value>",
                  setting.value, "</value></prop></item>\n");
  return xml + "</oor:items>\n";
}

std::string MacroModule() {
  return Concat(
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<!DOCTYPE script:module PUBLIC \"-//OpenOffice.org//DTD OfficeDocument 1.0//EN\" \"module.dtd\">\n"
      "<script:module xmlns:script=\"http://openoffice.org/2000/script\" script:name=\"Module1\" "
      "script:language=\"StarBasic\" script:moduleType=\"normal\">",
      XmlEscaped(kOfficeMacro), "</script:module>\n");
}

// "7.4" of "LibreOffice 7.4.7.2 ..."; empty if the text is something else.
std::string VersionIn(std::string_view text) {
  constexpr std::string_view kName = "LibreOffice ";
  const std::size_t found = text.find(kName);
  if (found == std::string_view::npos) return {};
  const std::string_view version = text.substr(found + kName.size());
  const std::size_t end = version.find('.', std::min(version.find('.'), version.size() - 1) + 1);
  return std::string(version.substr(0, std::min(end, version.find_first_not_of("0123456789."))));
}

// Tells one installation, and one state of our macro, from another: a profile is made anew when it changes.
std::string SeedMark(const std::string& binary) {
  std::error_code error;
  const auto changed = fs::last_write_time(binary, error).time_since_epoch().count();
  const auto size = fs::file_size(binary, error);
  return Concat(binary, "\n", std::to_string(changed), " ", std::to_string(size), " ",
                std::to_string(std::hash<std::string>{}(MacroModule() + ProfileSettings(""))), "\n");
}

std::chrono::milliseconds TimeLeft(std::chrono::steady_clock::time_point deadline) {
  using std::chrono::milliseconds;
  const auto left = std::chrono::duration_cast<milliseconds>(deadline - std::chrono::steady_clock::now());
  return std::max(left, milliseconds(1));
}

ProcessCall OfficeCall(const std::string& program, const std::string& profile, const std::string& temporary,
                       std::chrono::steady_clock::time_point deadline) {
  ProcessCall call;
  call.arguments = {program, "-env:UserInstallation=" + FileUrl(profile), "--headless", "--norestore"};
  // Without a UTF-8 locale paths with umlauts are not found.
  call.environment = {"LC_ALL=C.UTF-8", "SAL_USE_VCLPLUGIN=svp", "TMPDIR=" + temporary};
  call.folder = temporary;
  call.limit = TimeLeft(deadline);
  return call;
}

}  // namespace

Office::Office(OfficeSetup setup) : setup_(std::move(setup)) { TemporaryFolder::RemoveLeftovers(setup_.cacheFolder); }

bool Office::IsInstalled() const { return !FindPrograms().wrapper.empty(); }

Office::Programs Office::FindPrograms() const {
  const std::string found =
      FindProgram(setup_.program.empty() ? "soffice" : setup_.program,
                  {"/usr/lib/libreoffice/program", "/usr/lib64/libreoffice/program", "/opt/libreoffice/program",
                   "/usr/local/lib/libreoffice/program", "/Applications/LibreOffice.app/Contents/MacOS"});
  if (found.empty()) return {};
  std::error_code error;
  const fs::path resolved = fs::canonical(found, error);
  const std::string wrapper = error ? found : resolved.string();
  // The binary needs no shell in between, which halves the number of processes to look after.
  const std::string binary = FindProgram((fs::path(wrapper).parent_path() / "soffice.bin").string());
  return {wrapper, binary.empty() ? wrapper : binary};
}

// Makes a copy of the prepared profile at `target`; gives the reason if that fails.
std::string Office::PrepareProfile(const Programs& programs, const std::string& target, Deadline deadline) const {
  const std::string seeded = setup_.cacheFolder + "/profile";
  const std::string mark = SeedMark(programs.binary);
  const FileLock lock(setup_.cacheFolder + "/profile.lock", deadline);
  if (!lock.IsHeld()) return std::string(kTooSlow);
  std::error_code error;
  if (ReadWholeFile(seeded + "/kontorwerk-profile") != mark) {
    fs::remove_all(seeded, error);
    const TemporaryFolder fresh(setup_.cacheFolder);
    if (fresh.Path().empty()) return std::string(kNoProfile);
    const std::string folder = fresh.Path() + "/profile";
    if (std::string reason = SeedProfile(programs, folder, deadline); !reason.empty()) return reason;
    if (!WriteWholeFile(folder + "/kontorwerk-profile", mark)) return std::string(kNoProfile);
    fs::rename(folder, seeded, error);
  }
  fs::copy(seeded, target, fs::copy_options::recursive, error);
  return error ? std::string(kNoProfile) : std::string();
}

// A new profile: our settings, one start that builds its folders, then our macro. LibreOffice replaces the folder of
// the macros at its first start, so that the macro has to come last.
std::string Office::SeedProfile(const Programs& programs, const std::string& folder, Deadline deadline) const {
  std::error_code error;
  fs::create_directories(folder + "/user", error);
  const std::string temporary = fs::path(folder).parent_path().string();

  ProcessCall version = OfficeCall(programs.wrapper, folder, temporary, deadline);
  version.arguments = {programs.wrapper, "--version"};
  const ProcessResult told = RunProcess(version);
  if (told.end == ProcessEnd::TimedOut) return std::string(kTooSlow);
  if (!WriteWholeFile(folder + "/user/registrymodifications.xcu", ProfileSettings(VersionIn(told.output))))
    return std::string(kNoProfile);

  ProcessCall start = OfficeCall(programs.wrapper, folder, temporary, deadline);
  start.arguments.emplace_back("--terminate_after_init");
  if (RunProcess(start).end == ProcessEnd::TimedOut) return std::string(kTooSlow);
  return WriteWholeFile(folder + "/user/basic/Standard/Module1.xba", MacroModule()) ? std::string()
                                                                                    : std::string(kNoProfile);
}

// One process with a profile of its own in `jobFolder`. Its exit code says nothing: the caller looks for the result.
std::string Office::RunJob(const std::string& jobFolder, const std::vector<std::string>& arguments) const {
  const Deadline deadline = std::chrono::steady_clock::now() + setup_.limit;
  const Programs programs = FindPrograms();
  if (programs.wrapper.empty()) return std::string(kMissing);
  const std::string profile = jobFolder + "/profile";
  if (std::string reason = PrepareProfile(programs, profile, deadline); !reason.empty()) return reason;
  ProcessCall call = OfficeCall(programs.binary, profile, jobFolder, deadline);
  call.arguments.insert(call.arguments.end(), arguments.begin(), arguments.end());
  return RunProcess(call).end == ProcessEnd::TimedOut ? std::string(kTooSlow) : std::string();
}

FilledDocument Office::Fill(std::string_view templateBytes, const FieldValues& values) {
  if (FormatOf(templateBytes) == DocumentFormat::Unknown) return {{}, {}, std::string(kUnknownFormat)};
  if (!IsInstalled()) return {{}, {}, std::string(kMissing)};
  const TemporaryFolder job(setup_.cacheFolder);
  const std::string jobFile = job.Path() + "/job.txt";
  if (job.Path().empty() || !WriteWholeFile(job.Path() + "/template", templateBytes) ||
      !WriteWholeFile(jobFile, JobText(job.Path(), values)))
    return {{}, {}, std::string(kNoProfile)};
  std::string reason =
      RunJob(job.Path(), {Concat("macro:///Standard.Module1.FillTemplate(\"", FileUrl(jobFile), "\")")});
  if (!reason.empty()) return {{}, {}, std::move(reason)};
  const auto answer = ReadWholeFile(jobFile + ".out");
  auto document = ReadWholeFile(job.Path() + "/filled.doc");
  auto pdf = ReadWholeFile(job.Path() + "/filled.pdf");
  if (!answer || *answer != "OK" || !document || !pdf) return {{}, {}, std::string(kNotConverted)};
  return {std::move(*document), std::move(*pdf), {}};
}

RenderedDocument Office::Render(std::string_view document) {
  // LibreOffice would set any other file as plain text.
  if (FormatOf(document) == DocumentFormat::Unknown) return {{}, std::string(kUnknownFormat)};
  if (!IsInstalled()) return {{}, std::string(kMissing)};
  const TemporaryFolder job(setup_.cacheFolder);
  const std::string file = job.Path() + "/document.doc";
  if (job.Path().empty() || !WriteWholeFile(file, document)) return {{}, std::string(kNoProfile)};
  std::string reason = RunJob(job.Path(), {"--convert-to", "pdf", "--outdir", job.Path() + "/out", file});
  if (!reason.empty()) return {{}, std::move(reason)};
  auto pdf = ReadWholeFile(job.Path() + "/out/document.pdf");
  if (!pdf || !pdf->starts_with("%PDF")) return {{}, std::string(kNotConverted)};
  return {std::move(*pdf), {}};
}

bool Office::Edit(const std::string& path) const {
  const Programs programs = FindPrograms();
  return !programs.wrapper.empty() && StartDetached({programs.wrapper, "--norestore", "-o", path});
}

}  // namespace kontorwerk
