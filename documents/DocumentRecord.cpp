// A row is read in one pass: its fields are split once, and the places of the closing fields follow from the layout.
#include "documents/DocumentRecord.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "documents/LineFields.h"
#include "store/Numbers.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr int kFirstPositionField = 15;
constexpr int kFieldsOfPosition = 7;
constexpr int kFieldsOfOldPosition = 4;
constexpr int kRowsOfShort = 12;
constexpr int kRowsOfLarge = 17;
constexpr std::string_view kSeedText = "Datenbank Nummernupdate - Kontorwerk-System";
constexpr std::string_view kTempWord = "Temp";
constexpr std::string_view kDraftWord = "Entwurf";

// Where the positions lie and where what follows them begins.
struct Shape {
  RowLayout layout = RowLayout::Counted;
  int rows = 0;

  [[nodiscard]] bool Old() const { return layout != RowLayout::Counted; }
  [[nodiscard]] int FieldsOfRow() const { return Old() ? kFieldsOfOldPosition : kFieldsOfPosition; }
  [[nodiscard]] int FirstFieldOfRow(int row) const { return kFirstPositionField + row * FieldsOfRow(); }
  // `Gesamt`. Kept: one empty field stands in front of it in the counted layout, every version writes it.
  [[nodiscard]] int TotalField() const { return FirstFieldOfRow(rows) + (Old() ? 0 : 1); }
  [[nodiscard]] int AmountField() const { return TotalField() + (Old() ? 2 : 3); }
};

// A count beyond this would lie behind the end of any line; it keeps the arithmetic of fields within range.
constexpr double kMostRows = 1'000'000;

Shape ShapeOf(std::string_view line) {
  const std::string_view mark = RecordField(line, 1);
  if (mark == "short") return {RowLayout::Short, kRowsOfShort};
  if (mark == "large") return {RowLayout::Large, kRowsOfLarge};
  const double count = std::clamp(ToNumber(mark).value_or(0), 0.0, kMostRows);
  return {RowLayout::Counted, static_cast<int>(count)};
}

PositionRow ReadRow(const LineFields& fields, const Shape& shape, int row) {
  const int first = shape.FirstFieldOfRow(row);
  if (shape.Old()) return {"", "", fields[first], fields[first + 1], fields[first + 2], fields[first + 3], false};
  return {fields[first],
          fields[first + 1],
          fields[first + 2],
          fields[first + 3],
          fields[first + 4],
          fields[first + 5],
          IsTrueText(fields[first + 6])};
}

// Rows that the line has fields for: a damaged count must not make rows out of nothing.
int RowsHeld(const LineFields& fields, const Shape& shape) {
  const int held = (fields.Count() - kFirstPositionField) / shape.FieldsOfRow() + 1;
  return fields.Count() < kFirstPositionField ? 0 : std::min(shape.rows, held);
}

void ReadHead(const LineFields& fields, DocumentRecord& record) {
  const std::array<std::string DocumentRecord::*, 11> head = {
      &DocumentRecord::number,      &DocumentRecord::Datum,           &DocumentRecord::KDNr,
      &DocumentRecord::KDName,      &DocumentRecord::Ansprechpartner, &DocumentRecord::Straße,
      &DocumentRecord::PLZ,         &DocumentRecord::Wohnort,         &DocumentRecord::UnsereZeichen,
      &DocumentRecord::IhreZeichen, &DocumentRecord::kindWord};
  int field = 2;
  for (const auto member : head) record.*member = fields[field++];
  record.BruttoButton = IsTrueText(fields[field++]);
  record.NettoButton = IsTrueText(fields[field]);
}

void ReadFoot(const LineFields& fields, const Shape& shape, DocumentKind kind, DocumentRecord& record) {
  int field = shape.TotalField();
  record.Gesamt = fields[field++];
  record.MWST = fields[field++];
  if (!shape.Old()) record.MWST2 = fields[field++];
  record.Betrag = fields[field++];
  record.Zahlungsweise = MarksToLineBreaks(fields[field++]);
  record.Text1 = MarksToLineBreaks(fields[field++]);
  record.Text2 = MarksToLineBreaks(fields[field++]);
  if (kind == DocumentKind::Invoice) record.LieferscheinNr = fields[field++];
  record.Anrede = fields[field];
}

void AddRow(std::vector<std::string>& fields, const PositionRow& row) {
  for (const std::string* text : {&row.LGNr, &row.ArtNr, &row.S, &row.B, &row.E, &row.G}) fields.push_back(*text);
  fields.emplace_back(TickText(row.secondRate));
}

// Fields 2 to 14.
void AddHead(std::vector<std::string>& fields, const DocumentRecord& record) {
  for (const std::string* text :
       {&record.number, &record.Datum, &record.KDNr, &record.KDName, &record.Ansprechpartner, &record.Straße,
        &record.PLZ, &record.Wohnort, &record.UnsereZeichen, &record.IhreZeichen, &record.kindWord})
    fields.push_back(*text);
  fields.emplace_back(BooleanText(record.BruttoButton));
  fields.emplace_back(BooleanText(record.NettoButton));
}

std::string MarkerLine(std::string_view number, std::string_view word, std::string_view today,
                       std::string_view KDName) {
  return LineBreaksToMarks(RecordLine({"short", number, word, today, KDName}));
}

}  // namespace

DocumentRecord ReadDocument(std::string_view line, DocumentKind kind) {
  const LineFields fields(line);
  const Shape shape = ShapeOf(line);
  DocumentRecord record;
  record.layout = shape.layout;
  ReadHead(fields, record);
  const int rows = RowsHeld(fields, shape);
  record.rows.reserve(static_cast<std::size_t>(rows));
  for (int row = 0; row < rows; ++row) record.rows.push_back(ReadRow(fields, shape, row));
  ReadFoot(fields, shape, kind, record);
  return record;
}

std::string DocumentLine(const DocumentRecord& record, DocumentKind kind) {
  const int rowCount = StoredRowCount(record.rows);
  std::vector<std::string> fields;
  fields.reserve(static_cast<std::size_t>(Shape{RowLayout::Counted, rowCount}.TotalField()) + 9);
  fields.push_back(std::to_string(rowCount));
  AddHead(fields, record);
  for (int row = 0; row < rowCount; ++row) AddRow(fields, record.rows[static_cast<std::size_t>(row)]);
  fields.emplace_back();
  for (const std::string* text : {&record.Gesamt, &record.MWST, &record.MWST2, &record.Betrag, &record.Zahlungsweise,
                                  &record.Text1, &record.Text2})
    fields.push_back(*text);
  if (kind == DocumentKind::Invoice) fields.push_back(record.LieferscheinNr);
  fields.push_back(record.Anrede);
  return LineBreaksToMarks(RecordLine(fields));
}

DocumentAmounts AmountsOf(std::string_view line) {
  const Shape shape = ShapeOf(line);
  return {RecordField(line, shape.TotalField()), RecordField(line, shape.AmountField())};
}

MarkerRow MarkerOf(std::string_view line) {
  if (RecordField(line, 1) != "short") return MarkerRow::None;
  if (RecordField(line, 5) == kSeedText) return MarkerRow::Seed;
  const std::string_view word = RecordField(line, 3);
  if (word == kTempWord) return MarkerRow::Temp;
  return word == kDraftWord ? MarkerRow::Draft : MarkerRow::None;
}

std::string MarkerRefusal(MarkerRow marker) {
  switch (marker) {
    case MarkerRow::Seed:
      return "Dies ist ein Programminterner Eintrag und kann nicht aufgerufen werden!";
    case MarkerRow::Temp:
      return Concat("Temp Angebote sind Angebote, welche temporär gespeichert wurden!\r\n"_t,
                    "Diese werden wahrscheinlich gerade bearbeitet und können nicht aufgerufen werden!"_t);
    case MarkerRow::Draft:
      return Concat("Entwürfe müssen direkt über das Kontroll - Center aufgerufen werden!"_t);
    case MarkerRow::None:
      break;
  }
  return {};
}

std::string TempRow(std::string_view number, std::string_view today, std::string_view KDName) {
  return MarkerLine(number, kTempWord, today, KDName);
}

std::string DraftMarkerRow(std::string_view number, std::string_view today, std::string_view KDName) {
  return MarkerLine(number, kDraftWord, today, KDName);
}

std::string_view FindDocumentLine(std::string_view tableText, std::string_view number) {
  std::string_view found;
  ForEachRow(tableText, [&](std::string_view line) {
    if (found.empty() && RecordField(line, 2) == number) found = line;
  });
  return found;
}

bool PrependDocument(RecordStore& store, DocumentKind kind, std::string_view tableText, std::string_view line) {
  return store.WriteTable(NamesOf(kind).table, Concat(line, kLineEnd, tableText));
}

}  // namespace kontorwerk
