#include "receivables/OpenDocumentRecords.h"

#include <cstddef>
#include <set>
#include <unordered_set>

#include "store/Numbers.h"
#include "store/RecordLine.h"

namespace kontorwerk {
namespace {

constexpr std::string_view kInvoice = "RG";
constexpr std::string_view kDeliveryNote = "LS";
constexpr std::string_view kCreditNote = "GS";

bool IsLineOf(std::string_view line, std::string_view Belegart, std::string_view number) {
  return RecordField(line, kOpenBelegart) == Belegart && RecordField(line, kOpenNumber) == number;
}

bool WasSettled(RecordStore& store, const OpenDocumentRecord& record) {
  const std::string settledText = store.ReadTableText(table::kSettledDocuments);
  return IsSettled(settledText, DocumentKey(record.Belegart, record.number));
}

// Writes on top of the text that the caller has read in this command, so that a failed read never loses lines.
bool PutOnTop(RecordStore& store, std::string_view openText, const OpenDocumentRecord& record) {
  return store.WriteTable(table::kOpenDocuments, Concat(OpenDocumentLine(record), kLineEnd, openText));
}

// Asks for each open line of the invoice that has another amount, and replaces those with a yes.
void OfferNewAmount(RecordStore& store, std::string_view openText, const OpenDocumentRecord& record,
                    const Question& takeNewAmount) {
  // The answers come first: a box may stay open for long, and the table is read afresh behind it.
  std::set<std::string, std::less<>> outdated;
  ForEachRow(openText, [&](std::string_view line) {
    const bool differs =
        IsLineOf(line, record.Belegart, record.number) && RecordField(line, kOpenBetrag) != record.Betrag;
    if (differs && takeNewAmount()) outdated.emplace(line);
  });
  const std::string newLine = OpenDocumentLine(record);
  store.RewriteTable(table::kOpenDocuments, BlankRows::Keep, [&](std::string_view line) {
    return outdated.contains(line) ? RowChange::Replace(newLine) : RowChange::Keep();
  });
}

// The table without the lines of the keys, and so many blank lines more.
bool RemoveKeys(RecordStore& store, const std::vector<std::string>& keys, std::size_t blankLines) {
  const std::unordered_set<std::string> removed(keys.begin(), keys.end());
  const std::string openText = store.ReadTableText(table::kOpenDocuments);
  std::string text = RewrittenText(openText, BlankRows::Keep, [&removed](std::string_view line) {
    const std::string key = DocumentKey(RecordField(line, kOpenBelegart), RecordField(line, kOpenNumber));
    return removed.contains(key) ? RowChange::Remove() : RowChange::Keep();
  });
  if (!text.empty())
    for (std::size_t line = 1; line < blankLines; ++line) text.append(kLineEnd);
  return store.WriteTable(table::kOpenDocuments, text);
}

// The keys leave the table of open documents and enter the list of settled ones.
void CloseDocuments(RecordStore& store, std::string_view keyList) {
  std::vector<std::string> keys;
  for (const std::string_view key : Split(keyList, " "))
    if (!key.empty()) keys.emplace_back(key);
  if (keys.empty()) return;
  // Kept: each key counts as a rewrite of its own and leaves its blank line.
  RemoveKeys(store, keys, keys.size());
  AppendSettledKeys(store, keys);
}

void EnterIfUnsettled(RecordStore& store, const OpenDocumentRecord& record) {
  if (!WasSettled(store, record)) PutOpenDocument(store, record);
}

}  // namespace

std::string OpenDocumentLine(const OpenDocumentRecord& record) {
  const bool credit = record.Belegart == kCreditNote;
  std::vector<std::string> fields = {record.Belegart, record.number};
  for (const std::string* text :
       {&record.Datum, &record.KDNr, &record.KDName, &record.Ansprechpartner, &record.Straße, &record.PLZ,
        &record.Wohnort, &record.UnsereZeichen, &record.IhreZeichen, &record.kindWord})
    fields.push_back(*text);
  fields.emplace_back(BooleanText(record.BruttoButton));
  fields.emplace_back(BooleanText(record.NettoButton));
  for (const std::string* text : {&record.Gesamt, &record.MWST, &record.MWST2}) fields.push_back(*text);
  fields.push_back(Concat(credit ? "-" : "", record.Betrag));
  if (record.Belegart == kInvoice) fields.push_back(record.Betrag);
  return LineBreaksToMarks(RecordLine(fields));
}

std::string DocumentKey(std::string_view Belegart, std::string_view number) { return Concat(Belegart, number); }

bool IsSettled(std::string_view settledText, std::string_view key) {
  return settledText.find(key) != std::string_view::npos;
}

bool StandsOpen(std::string_view openText, std::string_view Belegart, std::string_view number) {
  return openText.find(RecordLine({Belegart, number})) != std::string_view::npos;
}

std::string_view FindOpenDocument(std::string_view openText, std::string_view Belegart, std::string_view number) {
  std::string_view found;
  ForEachRow(openText, [&](std::string_view line) {
    if (found.empty() && IsLineOf(line, Belegart, number)) found = line;
  });
  return found;
}

bool PutOpenDocument(RecordStore& store, const OpenDocumentRecord& record) {
  const std::string openText = store.ReadTableText(table::kOpenDocuments);
  if (!StandsOpen(openText, record.Belegart, record.number)) return PutOnTop(store, openText, record);
  const std::string newLine = OpenDocumentLine(record);
  return store.RewriteTable(table::kOpenDocuments, BlankRows::Keep, [&](std::string_view line) {
    return IsLineOf(line, record.Belegart, record.number) ? RowChange::Replace(newLine) : RowChange::Keep();
  });
}

bool RemoveOpenDocuments(RecordStore& store, const std::vector<std::string>& keys) {
  return RemoveKeys(store, keys, 1);
}

bool AppendSettledKeys(RecordStore& store, const std::vector<std::string>& keys) {
  std::string entries;
  for (const std::string& key : keys)
    if (!key.empty()) entries += Concat("'", key, "',");
  if (entries.empty()) return true;
  const std::string old = store.ReadTableText(table::kSettledDocuments);
  return store.WriteTable(table::kSettledDocuments, Concat(old, entries));
}

void EnterQuotation(RecordStore& store, const OpenDocumentRecord& record, const Question& takeIn) {
  if (!WasSettled(store, record) && takeIn()) PutOpenDocument(store, record);
}

void EnterDeliveryNote(RecordStore& store, const OpenDocumentRecord& record) { EnterIfUnsettled(store, record); }

void EnterCreditNote(RecordStore& store, const OpenDocumentRecord& record) { EnterIfUnsettled(store, record); }

void EnterInvoice(RecordStore& store, const OpenDocumentRecord& record, std::string_view LieferscheinNr,
                  std::string& closedDocumentKeys, const Question& takeNewAmount) {
  if (WasSettled(store, record)) return;
  if (!LieferscheinNr.empty()) closedDocumentKeys += Concat(" ", DocumentKey(kDeliveryNote, LieferscheinNr));
  const std::string openText = store.ReadTableText(table::kOpenDocuments);
  if (StandsOpen(openText, record.Belegart, record.number)) {
    OfferNewAmount(store, openText, record, takeNewAmount);
  } else {
    PutOnTop(store, openText, record);
  }
  CloseDocuments(store, closedDocumentKeys);
  closedDocumentKeys.clear();
}

std::string TakeInQuotationQuestion(std::string_view number, std::string_view KDName) {
  return Concat("Soll das Angebot ", number, " an ", KDName, " zur Nachverfolgung\r\n",
                "in die Datenbank der offenen Belege aufgenommen werden?");
}

std::string NewAmountQuestion() {
  return Concat("Zwischen dem Rechnungsbetrag der eben ausgedruckten Rechnung\r\n",
                "und dem Betrag in der offenen Belege Liste, besteht ein Unterschied!\r\n",
                "Soll der neue Betrag in die offenen Belege übernommen werden?"_t);
}

}  // namespace kontorwerk
