// Runs a document through the word processor: each page fills a template of its own, is saved as a file and printed.
#pragma once

#include <functional>
#include <string_view>

#include "documents/PrintFields.h"
#include "platform/Platform.h"
#include "platform/WordXChange.h"
#include "store/Settings.h"

namespace kontorwerk {

// Receives the progress texts.
using ShowStatus = std::function<void(std::string_view text)>;

// Saves and prints all pages. The copies of a page print together; with `Sortieren` a document of several pages is run
// through as often as copies are wanted. False at the first step that fails (no template, a file that cannot be saved,
// a page that cannot be printed): the pages before it are saved and printed, the document of the failed page is
// still open in the word processor.
[[nodiscard]] bool PrintPaper(const PaperDocument& document, const PrinterChoice& choice, WordXChange& word,
                              const Settings& settings, const ShowStatus& showStatus);

// What the user is told when printing a document of the kind has failed.
[[nodiscard]] std::string PrintFailureMessage(DocumentKind kind);
[[nodiscard]] std::string_view PrintFailureStatus(DocumentKind kind);

}  // namespace kontorwerk
