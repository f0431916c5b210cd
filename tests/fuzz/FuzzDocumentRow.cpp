// Rows of the document tables and drafts: any text is read, and what was read is written in a form that reads back.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "documents/DocumentNumbers.h"
#include "documents/DocumentRecord.h"
#include "documents/DraftFile.h"
#include "documents/Totals.h"
#include "store/Text.h"

namespace {

void Require(bool condition) {
  if (!condition) std::abort();
}

// No apostrophe but those of the separators: only then does a text come back from a row as it went in.
bool IsClean(std::string_view text) {
  if (text.starts_with('\'')) text.remove_prefix(1);
  for (const std::string_view piece : kontorwerk::Split(text, "','"))
    if (piece.find('\'') != std::string_view::npos) return false;
  return true;
}

void CheckRow(std::string_view text, kontorwerk::DocumentKind kind) {
  const kontorwerk::DocumentRecord record = kontorwerk::ReadDocument(text, kind);
  // Rows come from fields of the line, or are the seventeen of the older layouts at most.
  Require(record.rows.size() <= text.size() / 3 + 17);
  const std::string line = kontorwerk::DocumentLine(record, kind);
  const kontorwerk::DocumentRecord again = kontorwerk::ReadDocument(line, kind);
  Require(again.layout == kontorwerk::RowLayout::Counted);
  const kontorwerk::DocumentAmounts amounts = kontorwerk::AmountsOf(line);
  Require(amounts.Gesamt == again.Gesamt && amounts.Betrag == again.Betrag);
  if (IsClean(text)) Require(kontorwerk::DocumentLine(again, kind) == line);
}

void CheckDraft(std::string_view text) {
  const std::string draft = kontorwerk::DraftText(kontorwerk::ReadDraft(text));
  // A lone comma or an unfinished last line meets the apostrophes that the reader puts around each line.
  const bool clean = text.find_first_of("',") == std::string_view::npos && text.ends_with("\r\n");
  if (clean) Require(kontorwerk::DraftText(kontorwerk::ReadDraft(draft)) == draft);
}

void CheckTotals(std::string_view text) {
  kontorwerk::Settings settings;
  settings.MWSTSatz = "0,19";
  settings.MWSTSatz2 = "0,07";
  kontorwerk::DocumentRecord record = kontorwerk::ReadDocument(text, kontorwerk::DocumentKind::Invoice);
  kontorwerk::Berechnen(record.rows, kontorwerk::PriceBase::Net, settings);
  kontorwerk::ConvertPrices(record.rows, kontorwerk::PriceBase::Gross, settings);
}

void CheckNumbers(std::string_view text) {
  for (const kontorwerk::DocumentKind kind : kontorwerk::kDocumentKinds) {
    const auto next = kontorwerk::NextNumber(kind, text, "29.06.2007");
    if (next) Require(next->size() >= 9 && next->ends_with("/2007"));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  if (size > 20000) return 0;
  for (const kontorwerk::DocumentKind kind : kontorwerk::kDocumentKinds) CheckRow(text, kind);
  CheckTotals(text);
  CheckNumbers(text);
  (void)kontorwerk::MarkerOf(text);
  CheckDraft(text);
  return 0;
}
