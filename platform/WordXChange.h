// The word processor as the program sees it: open a template, fill its marked fields, save, print, show.
// One document is open at a time. All texts and paths are Windows-1252; paths are in the program's form.
// How a template is filled and printed lies behind the interface, in platform/word.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace kontorwerk {

// In place of a printer's name: the pages are kept as a PDF file instead of being printed.
inline constexpr std::string_view kPdfFilePrinter = "PDF-Datei";

// True if `name` (without folder) can be the name of a file on every platform: not empty, no control character and
// none of \ / : * ? " < > |. A name with one of them must fail to be saved before it is joined to its folder,
// since a slash inside it would otherwise read as another folder.
[[nodiscard]] inline bool ValidFileName(std::string_view name) {
  const auto forbidden = [](char c) {
    return static_cast<unsigned char>(c) < 0x20 || std::string_view("\\/:*?\"<>|").find(c) != std::string_view::npos;
  };
  return !name.empty() && std::none_of(name.begin(), name.end(), forbidden);
}

// States: nothing open; open (a template and the values set so far). OpenTemplate opens and drops an earlier document;
// CloseDocument and Reset lead back to nothing open; every other operation leaves the document open. A step without
// an open document does nothing and gives false. Nothing is thrown.
class WordXChange {
 public:
  virtual ~WordXChange() = default;

  // Opens a new document from the template file at `path`. False, and nothing open, if it is missing or unreadable.
  [[nodiscard]] virtual bool OpenTemplate(std::string_view path) = 0;
  // Closes the document without saving. A file that was saved or shown stays.
  virtual void CloseDocument() = 0;
  // Puts `text` at every mark [name] or <<name>> of the body (text frames included), of the page header, of the page
  // footer. A later value of the same name counts; a mark that is never set stays visible. Upper and lower case of
  // the name make no difference. The text is never read as markup or as another mark; CR LF (or LF) breaks the line.
  virtual void SetField(std::string_view name, std::string_view text) = 0;
  virtual void SetFieldArea2(std::string_view name, std::string_view text) = 0;
  virtual void SetFieldArea3(std::string_view name, std::string_view text) = 0;
  // Saves the filled document whole or not at all. False if the name part of `path` does not pass ValidFileName, or
  // the template cannot be filled, or the file cannot be written; an older file of that name then stays.
  [[nodiscard]] virtual bool SaveDocument(std::string_view path) = 0;
  // Prints `copies` (at least 1) of the filled document on `printer` (the system's own printer if empty). `title` names
  // the job, or the file with kPdfFilePrinter. True once the printing system has taken the job.
  [[nodiscard]] virtual bool PrintDocument(std::string_view printer, int copies, std::string_view title) = 0;
  // Lets go of the word processor.
  virtual void Reset() = 0;
  // Shows the document to the user: the saved file; or the template itself while no field has been set (that is how a
  // template is edited); or a file of its own in the user's cache folder.
  [[nodiscard]] virtual bool ShowDocument() = 0;

  // Why the last step that gave false did so, one or two German sentences for the user; empty after a success.
  [[nodiscard]] virtual std::string ErrorText() const = 0;
};

}  // namespace kontorwerk
