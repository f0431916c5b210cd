// A row of one of the four document tables as a value: reading it in its present and its two older layouts, building
// it, and telling the marker rows that stand between the documents. Numbers are issued in DocumentNumbers.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "documents/DocumentKinds.h"
#include "documents/PositionGrid.h"
#include "store/RecordStore.h"

namespace kontorwerk {

// Field 1 of a row: a count of positions, or the mark of an older layout.
enum class RowLayout {
  Counted,  // a number of rows of seven fields each
  Short,    // 12 rows of four fields each, no second VAT amount
  Large,    // 17 rows of four fields each, no second VAT amount
};

struct DocumentRecord {
  RowLayout layout = RowLayout::Counted;  // as it was read; writing always counts
  std::string number;                     // "0150/2007"
  std::string Datum;
  std::string KDNr, KDName, Ansprechpartner, Straße, PLZ, Wohnort;
  std::string UnsereZeichen, IhreZeichen;
  std::string kindWord;  // "Angebot"; a quotation has the selector's text here
  bool BruttoButton = false;
  bool NettoButton = true;
  std::vector<PositionRow> rows;  // empty rows between filled ones are kept
  std::string Gesamt, MWST, MWST2, Betrag;
  std::string Zahlungsweise, Text1, Text2;
  std::string LieferscheinNr;  // invoices only: the delivery note printed with it, or empty
  std::string Anrede;
};

// The document of a line of the kind's table. Rows have no closing apostrophe. A line with fewer fields than its count
// says has as many rows as it holds fields for, and empty amounts; a count that is no number counts as 0.
[[nodiscard]] DocumentRecord ReadDocument(std::string_view line, DocumentKind kind);

// The line without its end. It holds StoredRowCount(rows) positions: those up to the last filled one, or all of
// them if none is filled. Always in the counted layout; line breaks in a field become marks.
[[nodiscard]] std::string DocumentLine(const DocumentRecord& record, DocumentKind kind);

// Net and gross amount of a line (`Gesamt`, `Betrag`) in any layout, for lists: no other field is read.
// The views live as long as `line`.
struct DocumentAmounts {
  std::string_view Gesamt;
  std::string_view Betrag;
};
[[nodiscard]] DocumentAmounts AmountsOf(std::string_view line);

// Lines of the document tables that are no documents. Their number counts like a document's.
enum class MarkerRow {
  None,
  Seed,   // the last number before the first one of a series
  Temp,   // a quotation's number, reserved while it is being written
  Draft,  // a quotation's number, held by a draft
};
[[nodiscard]] MarkerRow MarkerOf(std::string_view line);
// What a search screen says instead of opening the row; empty for None.
[[nodiscard]] std::string MarkerRefusal(MarkerRow marker);
// The lines that reserve the number `number` for a quotation; `today` is the date of their making.
[[nodiscard]] std::string TempRow(std::string_view number, std::string_view today, std::string_view KDName);
[[nodiscard]] std::string DraftMarkerRow(std::string_view number, std::string_view today, std::string_view KDName);

// The first line of the table's text whose field 2 is the number; empty without one. Markers are lines like others.
// The view lives as long as `tableText`.
[[nodiscard]] std::string_view FindDocumentLine(std::string_view tableText, std::string_view number);

// Writes the line on top of `tableText`, which the caller has read from the kind's table in the same command to issue
// the number from. If that read failed nothing is written and the result is false.
bool PrependDocument(RecordStore& store, DocumentKind kind, std::string_view tableText, std::string_view line);

}  // namespace kontorwerk
