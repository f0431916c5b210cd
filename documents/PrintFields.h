// What a document shows on paper: the marked fields of a template page with their values, and the names of the template
// and of the saved file. How the pages are run through the word processor is told in PrintRun.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "documents/DocumentKinds.h"
#include "documents/DocumentRecord.h"
#include "store/Settings.h"

namespace kontorwerk {

// Which amounts stay off the paper.
enum class Withheld {
  Nothing,
  Totals,  // a quotation: sums and tax, the prices of the rows stay
  Prices,  // a delivery note: these and the prices of the rows
};

// A document on its way to paper.
struct PaperDocument {
  DocumentKind kind = DocumentKind::Invoice;
  // `number` is the one printed, a delivery note's its own; `rows` are all rows of the grid; `LieferscheinNr` is that
  // of the delivery note that an invoice carries.
  DocumentRecord record;
  int storedRows = 0;
  std::string rateLabel1, rateLabel2;  // "19%"
  Withheld withheld = Withheld::Nothing;
};

// A page of a document: counted from 1, with what the pages before it add up to.
struct PaperPage {
  int page = 1;
  int pages = 1;
  std::string carryIn = "0";   // sum of the earlier pages
  std::string carryOut = "0";  // ... and of this one
};

enum class FieldAreas {
  Body,
  All,  // body, page header and page footer
};

struct PaperField {
  std::string name;
  std::string text;
  FieldAreas areas = FieldAreas::Body;
  // In page header and footer where `areas` is All.
  std::string textOutsideBody = {};
};

// The fields of a page in the order in which they are set: head, sender, rows, amounts, closing texts.
[[nodiscard]] std::vector<PaperField> PaperFields(const PaperDocument& document, const PaperPage& page,
                                                  const Settings& settings);
// The fields of the form in rich text, whose names have no umlauts and which tells the time of delivery in a field of
// its own.
[[nodiscard]] std::vector<PaperField> RichTextFields(const PaperDocument& document, const PaperPage& page,
                                                     const Settings& settings);

// `carry` plus the totals of the page's rows, rounded at each step; a total that is no number adds nothing.
[[nodiscard]] std::string CarryBehindPage(const PaperDocument& document, int page, std::string_view carry);

// "Rechnungsvorlage_long1.dot": without a folder. One page takes the short form, however many there could be.
[[nodiscard]] std::string TemplateName(const PaperDocument& document, int page, int pages, bool einheitsbelege);
// "RG0150-2007_Max Mustermann_Seite2.doc": without a folder. The name may hold characters that no file name takes.
[[nodiscard]] std::string PaperFileName(const PaperDocument& document, int page);

}  // namespace kontorwerk
