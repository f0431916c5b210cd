#include "documents/Drafts.h"

#include <algorithm>

#include "documents/DocumentKinds.h"
#include "documents/DocumentNumbers.h"
#include "store/Numbers.h"
#include "store/RecordLine.h"

namespace kontorwerk {
namespace {

constexpr int kPrefixLength = 2;
constexpr int kYearLength = 4;
constexpr std::string_view kDraftPrefix = "EF";

std::string_view QuotationPrefix() { return NamesOf(DocumentKind::Quotation).prefix; }

// Kept: a line counts by its first word, so that a "=" in the customer's name does not hide it.
bool BeginsWithWord(std::string_view line, std::string_view key) { return NthWord(Replace(line, "=", " "), 1) == key; }

void RemoveMarkerRow(RecordStore& store, std::string_view number) {
  constexpr int kNumberField = 2;
  store.RewriteTable(table::kQuotations, BlankRows::Keep, [number](std::string_view line) {
    const bool heldByDraft = RecordField(line, kNumberField) == number && RecordField(line, 3) == "Entwurf";
    return heldByDraft ? RowChange::Remove() : RowChange::Keep();
  });
}

}  // namespace

std::string DraftKey(int selectorPlace, std::string_view number) {
  return Concat(selectorPlace == kSelectorQuotation ? QuotationPrefix() : kDraftPrefix, number);
}

std::string DraftFileName(std::string_view key) {
  return Concat(Left(key, kPrefixLength + kNumberDigits), "-", Right(key, kYearLength), ".tmp");
}

std::string_view DraftKeyOf(std::string_view registerLine) { return Left(registerLine, kDraftKeyLength); }

std::string DraftRegisterLine(std::string_view key, std::string_view datum, std::string_view KDName,
                              std::string_view PLZ, std::string_view Wohnort) {
  return LineBreaksToMarks(Concat(key, "=vom ", datum, " ", KDName, ", ", PLZ, " ", Wohnort));
}

std::vector<std::string_view> DraftLinesOf(std::string_view registerText, std::string_view key) {
  std::vector<std::string_view> lines;
  ForEachRow(registerText, [&](std::string_view line) {
    if (DraftKeyOf(line) == key) lines.push_back(line);
  });
  return lines;
}

std::string NumberBehindHighestDraft(std::string_view registerText, std::string_view prefix, std::string_view datum) {
  double highest = 0;
  ForEachRow(registerText, [&](std::string_view line) {
    if (!line.starts_with(prefix)) return;
    highest = std::max(highest, ToNumber(Mid(line, kPrefixLength + 1, kNumberDigits)).value_or(0));
  });
  return Concat(PadZeros(NumberText(highest + 1), kNumberDigits), "/", Right(datum, kYearLength));
}

bool PutDraftLine(RecordStore& store, std::string_view key, std::string_view line) {
  const std::string registerText = store.ReadTableText(table::kDrafts);
  if (DraftLinesOf(registerText, key).empty())
    return store.WriteTable(table::kDrafts, Concat(registerText, line, kLineEnd));
  return store.RewriteTable(table::kDrafts, BlankRows::Drop, [&](std::string_view old) {
    return DraftKeyOf(old) == key ? RowChange::Replace(std::string(line)) : RowChange::Keep();
  });
}

std::string LeftoverDraftQuestion(std::string_view registerLine) {
  return Concat("Es existiert zu dem eben gedrucken Beleg\r\n", "noch folgender Entwurf (", registerLine, "): \r\n",
                "Durch die automatische Nummernvergabe ist es möglich, dass dieser Entwurf\r\n"_t,
                "zu einem anderen Vorgang gehört!!!\r\n"_t, "Soll dieser Entwurf gelöscht werden?"_t);
}

int DeleteDraft(RecordStore& store, std::string_view key) {
  store.RewriteTable(table::kDrafts, BlankRows::Drop, [key](std::string_view line) {
    return BeginsWithWord(line, key) ? RowChange::Remove() : RowChange::Keep();
  });
  (void)store.Files().Remove(store.PathOf(DraftFileName(key)));
  if (Left(key, kPrefixLength) == QuotationPrefix()) RemoveMarkerRow(store, Mid(key, kPrefixLength + 1));
  int left = 0;
  ForEachRow(store.ReadTableText(table::kDrafts), [&left](std::string_view) { ++left; });
  return left;
}

}  // namespace kontorwerk
