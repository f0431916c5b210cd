// Lines of partners made, read, replaced and searched. Blank lines arise with each replaced line and are passed over.
#include "partners/PartnerTable.h"

#include <charconv>
#include <utility>

#include "store/CaseBlindPattern.h"
#include "store/Numbers.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr int kNumberLength = 5;

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

// The number behind the line's opening apostrophe.
std::optional<long long> NumberOfLine(std::string_view line) {
  const std::string_view text = Mid(line, 2);
  std::size_t length = 0;
  while (length < text.size() && IsDigit(text[length])) ++length;
  long long number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + length, number);
  if (length == 0 || error != std::errc()) return std::nullopt;
  return number;
}

PartnerHit HitOf(std::string_view line) {
  return {RecordField(line, partner::kNumber), RecordField(line, partner::kName), RecordField(line, partner::kStraße),
          RecordField(line, partner::kPLZ), RecordField(line, partner::kWohnort)};
}

}  // namespace

std::string_view Partner::Text(int column) const {
  const auto index = static_cast<std::size_t>(column - 1);
  return index < texts.size() ? std::string_view(texts[index]) : std::string_view();
}

// Kept: the last line decides, not the highest number, so that the number of a deleted last partner is issued again.
std::string NextPartnerNumber(std::string_view tableText, const PartnerKind& kind) {
  std::optional<long long> last;
  ForEachRow(tableText, [&last](std::string_view line) {
    if (const std::optional<long long> number = NumberOfLine(line)) last = number;
  });
  const std::int64_t next = last ? *last + 1 : kind.firstNumber;
  return PadZeros(NumberText(next), kNumberLength);
}

std::string PartnerLine(const Partner& partner) {
  std::vector<std::string> fields;
  fields.reserve(partner.texts.size() + 1);
  for (const std::string& text : partner.texts) fields.push_back(LineBreaksToMarks(text));
  fields.push_back(partner.Erfassdatum);
  return RecordLine(fields);
}

Partner ReadPartner(std::string_view line, const PartnerKind& kind) {
  const std::vector<std::string_view> fields = RecordFields(line);
  const auto field = [&fields](int column) {
    const auto index = static_cast<std::size_t>(column - 1);
    return index < fields.size() ? fields[index] : std::string_view();
  };
  Partner partner;
  for (int column = 1; column <= kind.BoxCount(); ++column) {
    const std::string_view text = field(column);
    partner.texts.push_back(column == partner::kFreitext ? MarksToLineBreaks(text) : std::string(text));
  }
  partner.Erfassdatum = field(kind.DateColumn());
  return partner;
}

std::optional<Partner> FindPartner(std::string_view tableText, std::string_view number, const PartnerKind& kind) {
  std::string_view found;
  ForEachRow(tableText, [&](std::string_view line) {
    if (found.empty() && RecordField(line, partner::kNumber) == number) found = line;
  });
  if (found.empty()) return std::nullopt;
  return ReadPartner(found, kind);
}

bool AppendPartner(RecordStore& store, const PartnerKind& kind, Partner& partner, std::string_view today) {
  const std::string old = store.ReadTableText(kind.table);
  partner.texts[partner::kNumber - 1] = NextPartnerNumber(old, kind);
  partner.Erfassdatum = today;
  return store.WriteTable(kind.table, Concat(old, PartnerLine(partner), kLineEnd));
}

bool ReplacePartner(RecordStore& store, const PartnerKind& kind, const Partner& partner) {
  const std::string_view number = partner.Text(partner::kNumber);
  return store.RewriteTable(kind.table, BlankRows::Keep, [&](std::string_view line) {
    if (RecordField(line, partner::kNumber) != number) return RowChange::Keep();
    Partner changed = partner;
    changed.Erfassdatum = RecordField(line, kind.DateColumn());
    return RowChange::Replace(PartnerLine(changed));
  });
}

std::string RemovePartner(RecordStore& store, const PartnerKind& kind, std::string_view number) {
  const std::string old = store.ReadTableText(kind.table);
  std::string rest = RewrittenText(old, BlankRows::Drop, [number](std::string_view line) {
    return RecordField(line, partner::kNumber) == number ? RowChange::Remove() : RowChange::Keep();
  });
  store.WriteTable(kind.table, rest);
  return rest;
}

std::vector<PartnerHit> FindPartners(std::string_view tableText, std::string_view searchText) {
  std::vector<PartnerHit> hits;
  ForEachRowWith(tableText, CaseBlindPattern(searchText),
                 [&hits](std::string_view line) { hits.push_back(HitOf(line)); });
  return hits;
}

}  // namespace kontorwerk
