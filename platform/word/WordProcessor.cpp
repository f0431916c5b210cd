// One open document at a time, filled as late as possible and only once.
#include "platform/word/WordProcessor.h"

#include "platform/word/Office.h"
#include "platform/word/Processes.h"
#include "store/CodePage.h"
#include "store/Text.h"

#include <algorithm>
#include <filesystem>
#include <utility>

namespace kontorwerk {

namespace {

constexpr std::string_view kNothingOpen = "Es ist kein Dokument geöffnet."_t;
constexpr std::string_view kNotShown =
    "Das Dokument konnte nicht angezeigt werden. Bitte prüfen Sie, ob ein Textprogramm installiert ist."_t;

// The part behind the last separator. A drive's colon counts as one.
std::string_view NameOf(std::string_view path) {
  const std::size_t separator = path.find_last_of("\\/");
  if (separator != std::string_view::npos) return path.substr(separator + 1);
  return path.size() >= 2 && path[1] == ':' ? path.substr(2) : path;
}

std::string_view FolderOf(std::string_view path) { return path.substr(0, path.size() - NameOf(path).size()); }

std::string_view WithoutEnding(std::string_view name) { return name.substr(0, name.rfind('.')); }

}  // namespace

WordProcessor::WordProcessor(WordProcessorParts parts) : parts_(std::move(parts)) {}

WordProcessor::~WordProcessor() = default;

bool WordProcessor::Fail(std::string_view reason) {
  error_ = reason;
  return false;
}

bool WordProcessor::HasDocument() {
  error_.clear();
  return document_ != nullptr || Fail(kNothingOpen);
}

bool WordProcessor::OpenTemplate(std::string_view path) {
  CloseDocument();
  error_.clear();
  ReadResult read = parts_.files->Read(path);
  if (read.status == ReadStatus::Missing) return Fail(Concat("Die Vorlage ", path, " wurde nicht gefunden."));
  if (read.status == ReadStatus::Failed) return Fail(Concat("Die Vorlage ", path, " konnte nicht gelesen werden."));
  if (FormatOf(read.text) == DocumentFormat::Unknown)
    return Fail(Concat("Die Vorlage ", path, " ist weder ein Word-Dokument noch ein OpenDocument- oder RTF-Dokument."));
  document_ = std::make_unique<OpenDocument>();
  document_->templatePath = path;
  document_->templateBytes = std::move(read.text);
  return true;
}

void WordProcessor::CloseDocument() { document_.reset(); }

void WordProcessor::Reset() { CloseDocument(); }

void WordProcessor::SetField(std::string_view name, std::string_view text) { Set(TextArea::Body, name, text); }

void WordProcessor::SetFieldArea2(std::string_view name, std::string_view text) { Set(TextArea::Header, name, text); }

void WordProcessor::SetFieldArea3(std::string_view name, std::string_view text) { Set(TextArea::Footer, name, text); }

void WordProcessor::Set(TextArea area, std::string_view name, std::string_view text) {
  if (document_ == nullptr) return;
  document_->values.Set(area, name, text);
  document_->filled.reset();
  document_->savedPath.clear();
}

bool WordProcessor::Fill() {
  OpenDocument& document = *document_;
  if (document.filled) return true;
  if (FormatOf(document.templateBytes) == DocumentFormat::RichText) {
    document.filled = FilledDocument{RtfTemplate(document.templateBytes).Fill(document.values), {}, {}};
    return true;
  }
  FilledDocument filled = parts_.filler->Fill(document.templateBytes, document.values);
  if (!filled.error.empty()) return Fail(filled.error);
  document.filled = std::move(filled);
  return true;
}

// The pages of the filled document as PDF, set once until a value changes.
bool WordProcessor::Render() {
  if (!Fill()) return false;
  FilledDocument& filled = *document_->filled;
  if (!filled.pdf.empty()) return true;
  RenderedDocument rendered = parts_.renderer->Render(filled.document);
  if (!rendered.error.empty()) return Fail(rendered.error);
  filled.pdf = std::move(rendered.pdf);
  return true;
}

bool WordProcessor::SaveDocument(std::string_view path) {
  if (!HasDocument()) return false;
  if (!ValidFileName(NameOf(path)))
    return Fail(Concat("Der Dateiname ", NameOf(path), " enthält Zeichen, die in Dateinamen nicht erlaubt sind."_t));
  if (!Fill() || !WriteTo(path)) return false;
  document_->savedPath = path;
  return true;
}

bool WordProcessor::WriteTo(std::string_view path) {
  return parts_.files->Write(path, document_->filled->document) ||
         Fail(Concat("Das Dokument ", path, " konnte nicht gespeichert werden."));
}

bool WordProcessor::PrintDocument(std::string_view printer, int copies, std::string_view title) {
  if (!HasDocument() || !Render()) return false;
  const std::string reason = printer == kPdfFilePrinter
                                 ? KeepPdf(title)
                                 : parts_.printer->Print({document_->filled->pdf, printer, std::max(copies, 1), title});
  return reason.empty() || Fail(reason);
}

// A saved document has its PDF file beside it under its own name, an earlier one replaced as the document was.
// Another document, such as each letter of a series, gets a new file; printing it again replaces that one.
std::string WordProcessor::KeepPdf(std::string_view title) {
  OpenDocument& document = *document_;
  const std::string known = document.savedPath.empty() ? document.pdfPath : document.savedPath;
  const std::string stem(WithoutEnding(NameOf(known.empty() ? document.templatePath : known)));
  const std::string_view name = !known.empty() || title.empty() ? std::string_view(stem) : title;
  PdfFileSink sink(*parts_.files, known.empty() ? parts_.pdfFolder : std::string(FolderOf(known)), known.empty());
  std::string reason = sink.Print({document.filled->pdf, kPdfFilePrinter, 1, name});
  if (reason.empty()) document.pdfPath = sink.LastPath();
  return reason;
}

// A new name: the file shown before may still be open in the user's hands.
std::string WordProcessor::PathForShowing() const {
  const std::string stem = Concat(parts_.shownFolder, WithoutEnding(NameOf(document_->templatePath)));
  std::string path = stem + ".doc";
  for (int number = 2; parts_.files->Exists(path); ++number) path = Concat(stem, " (", std::to_string(number), ").doc");
  return path;
}

bool WordProcessor::ShowDocument() {
  if (!HasDocument()) return false;
  std::string path = document_->savedPath;
  if (path.empty() && document_->values.Empty()) path = document_->templatePath;
  if (path.empty()) {
    path = PathForShowing();
    if (!Fill() || !WriteTo(path)) return false;
  }
  return (parts_.open != nullptr && parts_.open(path)) || Fail(kNotShown);
}

namespace {

struct InstalledParts {
  Office office;
  CupsSink printer;
};

// Owns the parts of an installation; they are made before the word processor that looks at them.
class InstalledWordProcessor final : private InstalledParts, public WordProcessor {
 public:
  InstalledWordProcessor(const FileSystemObject& files, const std::string& cacheFolder, std::string shownFolder,
                         std::string pdfFolder, std::function<bool(std::string_view path)> open)
      : InstalledParts{Office({.cacheFolder = cacheFolder + "/office"}),
                       CupsSink({.workFolder = cacheFolder + "/print"})},
        WordProcessor(
            {&files, &office, &office, &printer, std::move(shownFolder), std::move(pdfFolder), std::move(open)}) {}
};

}  // namespace

std::unique_ptr<WordXChange> MakeWordProcessor(const FileSystemObject& files, const std::string& cacheFolder,
                                               std::string pdfFolder, std::function<bool(std::string_view path)> open) {
  const std::string shown = cacheFolder + "/dokumente/";
  std::error_code error;
  std::filesystem::create_directories(shown, error);
  RemoveOldFiles(shown, std::chrono::days(7));
  std::string shownFolder = FromUtf8(shown).value_or(pdfFolder);
  return std::make_unique<InstalledWordProcessor>(files, cacheFolder, std::move(shownFolder), std::move(pdfFolder),
                                                  std::move(open));
}

}  // namespace kontorwerk
