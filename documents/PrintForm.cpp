#include "documents/PrintForm.h"

#include <algorithm>
#include <functional>

#include "platform/word/FieldValues.h"
#include "platform/word/RtfTemplate.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr std::string_view kFormName = "Belegvorlage.rtf";

// Calls `use(fields)` for each page until it gives false; true if it never did.
bool ForEachPage(const PaperDocument& document, const Settings& settings,
                 const std::function<bool(const std::vector<PaperField>&)>& use) {
  PaperPage page{1, PageCount(document.storedRows), "0", "0"};
  for (; page.page <= page.pages; ++page.page) {
    page.carryIn = page.carryOut;
    page.carryOut = CarryBehindPage(document, page.page, page.carryIn);
    if (!use(RichTextFields(document, page, settings))) return false;
  }
  return true;
}

}  // namespace

std::vector<std::string> FillForm(const PaperDocument& document, const FileSystemObject& files,
                                  const Settings& settings) {
  std::vector<std::string> pages;
  const std::string bytes = files.Read(Concat(settings.DBPath, kFormName)).text;
  if (!RtfTemplate::IsRtf(bytes)) return pages;
  const RtfTemplate page(bytes);
  (void)ForEachPage(document, settings, [&](const std::vector<PaperField>& fields) {
    FieldValues values;
    for (const PaperField& field : fields) values.SetEverywhere(field.name, field.text);
    pages.push_back(page.Fill(values));
    return true;
  });
  return pages;
}

bool PrintForm(const PaperDocument& document, const PrinterChoice& choice, WordXChange& word,
               const Settings& settings) {
  const std::string path = Concat(settings.DBPath, kFormName);
  const std::string title = Concat("Beleg ", document.record.number);
  const bool printed = ForEachPage(document, settings, [&](const std::vector<PaperField>& fields) {
    if (!word.OpenTemplate(path)) return false;
    for (const PaperField& field : fields) {
      word.SetField(field.name, field.text);
      word.SetFieldArea2(field.name, field.text);
      word.SetFieldArea3(field.name, field.text);
    }
    return word.PrintDocument(choice.printer, std::max(choice.copies, 1), title);
  });
  word.CloseDocument();
  word.Reset();
  return printed;
}

std::string FormPrinted(std::string_view number) { return Concat("Beleg ", number, " wurde gedruckt!"); }

std::string FormNotPrinted(std::string_view number) {
  return Concat("Abbruch durch den Benutzer! Auftrag ", number, " wurde nicht gedruckt!");
}

}  // namespace kontorwerk
