// Paper: filling a template of rich text, and setting it as PDF beside a bare run of LibreOffice on the same file.
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "bench/Fail.h"
#include "bench/Measure.h"
#include "bench/Subjects.h"
#include "platform/EmbeddedFile.h"
#include "platform/word/Office.h"
#include "platform/word/RtfTemplate.h"
#include "store/Text.h"

namespace kontorwerk::bench {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kTemplate = "Belegvorlage.dot";
constexpr std::string_view kValue = "Sanitär und Heizung Huber GmbH"_t;

std::string TemplateBytes() {
  for (const EmbeddedFile& file : DefaultTemplates())
    if (file.name == kTemplate) return std::string(file.bytes);
  Fail("the template is missing");
}

FieldValues ValuesFor(const RtfTemplate& form) {
  FieldValues values;
  for (const TextArea area : {TextArea::Body, TextArea::Header, TextArea::Footer})
    for (const std::string& name : form.Names(area)) values.Set(area, name, kValue);
  return values;
}

std::string Filled(const std::string& bytes) {
  const RtfTemplate form(bytes);
  return form.Fill(ValuesFor(form));
}

// One search and replacement in the whole text for each mark, which is wrong wherever a change of format cuts a mark.
std::string FilledMarkByMark(const std::string& bytes, const std::vector<std::string>& names) {
  std::string text = bytes;
  for (const std::string& name : names) text = Replace(text, Concat("[", name, "]"), kValue);
  return text;
}

void AddFilling() {
  const std::string bytes = TemplateBytes();
  const std::string name = Concat("Fill ", kTemplate, ", marks");
  const std::vector<std::string> names = RtfTemplate(bytes).Names(TextArea::Body);
  const auto marks = static_cast<long>(names.size());
  MeasureAlone(name, kProgram, marks, 0, [bytes]() -> std::optional<long> {
    if (Filled(bytes).find("Sanit") == std::string::npos) Fail("nothing was filled");
    return std::nullopt;
  });
  MeasureAlone(name, "mark by mark", marks, 0, [bytes, names]() -> std::optional<long> {
    if (FilledMarkByMark(bytes, names).size() < bytes.size() / 2) Fail("nothing is left");
    return std::nullopt;
  });
}

fs::path PaperFolder() {
  static const fs::path kFolder = Firm::EstateFolder() / "Papier";
  fs::create_directories(kFolder);
  return kFolder;
}

// The first run makes LibreOffice's profile and is not measured.
void ConvertBarely(const fs::path& file) {
  const std::string command =
      Concat("soffice --headless -env:UserInstallation=file://", (PaperFolder() / "Profil").string(),
             " --convert-to pdf --outdir '", PaperFolder().string(), "' '", file.string(), "' >/dev/null 2>&1");
  if (std::system(command.c_str()) != 0) Fail("soffice has failed");
}

const fs::path& FilledFile() {
  static const fs::path kFile = [] {
    fs::path file = PaperFolder() / "Beleg.rtf";
    std::ofstream(file, std::ios::binary) << Filled(TemplateBytes());
    ConvertBarely(file);
    return file;
  }();
  return kFile;
}

// Its profile is made by a first run as well.
Office& PreparedOffice() {
  static const std::unique_ptr<Office> kOffice = [] {
    auto office = std::make_unique<Office>(OfficeSetup{.cacheFolder = (PaperFolder() / "Cache").string()});
    (void)office->Render(Filled(TemplateBytes()));
    return office;
  }();
  return *kOffice;
}

void AddRendering() {
  const std::string name = Concat(kTemplate, " to PDF, pages");
  if (!Office({}).IsInstalled()) return;
  const auto render = []() -> std::optional<long> {
    if (!PreparedOffice().Render(Filled(TemplateBytes())).pdf.starts_with("%PDF")) Fail("no PDF");
    return std::nullopt;
  };
  const auto convert = []() -> std::optional<long> {
    ConvertBarely(FilledFile());
    return std::nullopt;
  };
  MeasureAlone(name, kProgram, 1, 1, render, [] { (void)PreparedOffice(); });
  MeasureAlone(name, "bare soffice", 1, 1, convert, [] { (void)FilledFile(); });
}

}  // namespace

void AddPaperSubjects() {
  AddFilling();
  AddRendering();
}

}  // namespace kontorwerk::bench
