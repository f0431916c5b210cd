// The word processor behind WordXChange: collects the values of the open document and fills it once, when it is saved,
// printed or shown. Rich-text templates are filled here, others by LibreOffice, which also sets the pages for printing.
#pragma once

#include "platform/WordXChange.h"
#include "platform/word/PrintSink.h"
#include "platform/word/RtfTemplate.h"
#include "platform/word/TemplateFiller.h"
#include "store/FileSystem.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace kontorwerk {

struct WordProcessorParts {
  const FileSystemObject* files = nullptr;
  TemplateFiller* filler = nullptr;      // for templates that are not rich text
  DocumentRenderer* renderer = nullptr;  // for printing
  PrintSink* printer = nullptr;          // for printers
  std::string shownFolder;               // program's form, closing backslash: for documents shown but never saved
  std::string pdfFolder;                 // program's form, closing backslash: for PDF files of such documents
  std::function<bool(std::string_view path)> open;  // shows a file to the user; false if nothing could be started
};

class WordProcessor : public WordXChange {
 public:
  // What `parts` points to must outlive the object.
  explicit WordProcessor(WordProcessorParts parts);
  ~WordProcessor() override;

  bool OpenTemplate(std::string_view path) override;
  void CloseDocument() override;
  void SetField(std::string_view name, std::string_view text) override;
  void SetFieldArea2(std::string_view name, std::string_view text) override;
  void SetFieldArea3(std::string_view name, std::string_view text) override;
  bool SaveDocument(std::string_view path) override;
  bool PrintDocument(std::string_view printer, int copies, std::string_view title) override;
  void Reset() override;
  bool ShowDocument() override;
  std::string ErrorText() const override { return error_; }

 private:
  struct OpenDocument {
    std::string templatePath;
    std::string templateBytes;
    FieldValues values;
    std::optional<FilledDocument> filled;  // as long as no value changes
    std::string savedPath;                 // where `filled` lies as a file, or empty
    std::string pdfPath;                   // where its PDF was kept, or empty
  };

  void Set(TextArea area, std::string_view name, std::string_view text);
  [[nodiscard]] bool HasDocument();
  [[nodiscard]] bool Fill();
  [[nodiscard]] bool Render();
  [[nodiscard]] bool WriteTo(std::string_view path);
  [[nodiscard]] std::string KeepPdf(std::string_view title);
  [[nodiscard]] std::string PathForShowing() const;
  bool Fail(std::string_view reason);

  WordProcessorParts parts_;
  std::unique_ptr<OpenDocument> document_;
  std::string error_;
};

// The word processor of an installation with LibreOffice and CUPS as it finds them. `cacheFolder` (UTF-8, absolute)
// is the user's own; `pdfFolder` and `open` as in WordProcessorParts.
[[nodiscard]] std::unique_ptr<WordXChange> MakeWordProcessor(const FileSystemObject& files,
                                                             const std::string& cacheFolder, std::string pdfFolder,
                                                             std::function<bool(std::string_view path)> open);

}  // namespace kontorwerk
