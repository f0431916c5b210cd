// Prints a document through the one form in rich text (`Belegvorlage.rtf`), page by page, without saving a file.
#pragma once

#include <string>
#include <vector>

#include "documents/PrintRun.h"
#include "store/FileSystem.h"

namespace kontorwerk {

// The form of the data folder with the values of each page, as rich text; empty if it is missing or something else.
// Wherever the marks stand on the page, they are filled.
[[nodiscard]] std::vector<std::string> FillForm(const PaperDocument& document, const FileSystemObject& files,
                                                const Settings& settings);
// All pages to the printer, `copies` of each. False at the first page that fails.
[[nodiscard]] bool PrintForm(const PaperDocument& document, const PrinterChoice& choice, WordXChange& word,
                             const Settings& settings);

[[nodiscard]] std::string FormPrinted(std::string_view number);
[[nodiscard]] std::string FormNotPrinted(std::string_view number);

}  // namespace kontorwerk
