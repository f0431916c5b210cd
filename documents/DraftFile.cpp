#include "documents/DraftFile.h"

#include <algorithm>
#include <cstddef>

#include "documents/LineFields.h"
#include "store/Numbers.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr int kRowsOfShort = 12;
constexpr int kRowsOfLarge = 17;

// The values of the file one after the other, empty behind the last one.
class Values {
 public:
  explicit Values(std::string_view record) : fields_(record) {}

  [[nodiscard]] std::string Next() { return fields_[++last_]; }
  [[nodiscard]] std::string NextText() { return MarksToLineBreaks(Next()); }
  [[nodiscard]] bool NextTruth() { return IsTrueText(Next()); }
  [[nodiscard]] bool AtEnd() const { return last_ >= fields_.Count(); }

 private:
  LineFields fields_;
  int last_ = 0;
};

class Lines {
 public:
  void Add(std::string_view value) { text_.append(LineBreaksToMarks(value)).append(kLineEnd); }
  [[nodiscard]] std::string Text() const { return text_; }

 private:
  std::string text_;
};

// Kept: the lines are read as one record, so that a value loses a leading apostrophe as it does in the tables.
std::string RecordOfLines(std::string_view text) {
  std::string record;
  for (const std::string_view line : Split(text, kLineEnd)) record += Concat("'", line, "',");
  return record;
}

PositionRow ReadRow(Values& values, bool oldForm) {
  PositionRow row;
  if (!oldForm) {
    row.LGNr = values.Next();
    row.ArtNr = values.Next();
  }
  row.S = values.Next();
  row.B = values.Next();
  row.E = values.Next();
  row.G = values.Next();
  if (!oldForm) row.secondRate = values.NextTruth();
  return row;
}

void ReadHead(Values& values, bool oldForm, Draft& draft) {
  DocumentRecord& document = draft.document;
  if (!oldForm) document.KDNr = values.Next();
  for (std::string* text :
       {&document.KDName, &document.Ansprechpartner, &document.Straße, &document.PLZ, &document.Wohnort,
        &document.number, &document.Datum, &document.UnsereZeichen, &document.IhreZeichen})
    *text = values.Next();
  const double place = ToNumber(values.Next()).value_or(0);
  draft.selectorPlace = static_cast<int>(std::clamp<double>(place, kSelectorOpen, kSelectorInvoice));
  document.BruttoButton = values.NextTruth();
  document.NettoButton = values.NextTruth();
}

void ReadFoot(Values& values, bool oldForm, DocumentRecord& document) {
  document.Gesamt = values.Next();
  document.MWST = values.Next();
  if (!oldForm) document.MWST2 = values.Next();
  document.Betrag = values.Next();
  if (oldForm) document.KDNr = values.Next();
  document.Zahlungsweise = values.NextText();
  document.Text1 = values.NextText();
  document.Text2 = values.NextText();
  document.Anrede = values.Next();
}

void AddHead(Lines& lines, const Draft& draft) {
  const DocumentRecord& document = draft.document;
  const bool saved = draft.selectorPlace == kSelectorDeliveryNote || draft.selectorPlace == kSelectorInvoice;
  for (const std::string* text :
       {&document.KDNr, &document.KDName, &document.Ansprechpartner, &document.Straße, &document.PLZ, &document.Wohnort,
        &document.number, &document.Datum, &document.UnsereZeichen, &document.IhreZeichen})
    lines.Add(*text);
  lines.Add(std::to_string(saved ? int{kSelectorOpen} : draft.selectorPlace));
  lines.Add(BooleanText(document.BruttoButton));
  lines.Add(BooleanText(document.NettoButton));
}

}  // namespace

std::string DraftText(const Draft& draft) {
  const DocumentRecord& document = draft.document;
  Lines lines;
  lines.Add(std::to_string(document.rows.size()));
  AddHead(lines, draft);
  for (const PositionRow& row : document.rows) {
    for (const std::string* text : {&row.LGNr, &row.ArtNr, &row.S, &row.B, &row.E, &row.G}) lines.Add(*text);
    lines.Add(TickText(row.secondRate));
  }
  for (const std::string* text : {&document.Gesamt, &document.MWST, &document.MWST2, &document.Betrag,
                                  &document.Zahlungsweise, &document.Text1, &document.Text2, &document.Anrede})
    lines.Add(*text);
  return lines.Text();
}

Draft ReadDraft(std::string_view text) {
  const std::string record = RecordOfLines(text);
  Values values(record);
  Draft draft;
  const std::string mark = values.Next();
  const bool oldForm = mark == "short" || mark == "large";
  if (oldForm) draft.document.layout = mark == "short" ? RowLayout::Short : RowLayout::Large;
  const double rows = oldForm ? (mark == "short" ? kRowsOfShort : kRowsOfLarge) : ToNumber(mark).value_or(0);
  ReadHead(values, oldForm, draft);
  // A damaged count ends with the file.
  for (int row = 0; row < rows && !values.AtEnd(); ++row) draft.document.rows.push_back(ReadRow(values, oldForm));
  ReadFoot(values, oldForm, draft.document);
  return draft;
}

}  // namespace kontorwerk
