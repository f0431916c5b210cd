#include "shell/DocumentTables.h"

#include <array>

#include "store/Numbers.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr int kNumberLength = 4;
constexpr int kYearLength = 4;
// The last number used of a fresh series: its first document becomes 0101.
constexpr std::string_view kFreshSeries = "0100/";
constexpr std::string_view kFormatExample = "\r\nBsp: 0150/2007";

std::string SeedNumberOf(RecordStore& store, std::string_view fileName) {
  const std::string text = store.ReadTableText(fileName);
  return std::string(RecordField(FirstRow(text), 2));
}

void WriteSeed(RecordStore& store, std::string_view fileName, std::string_view number, std::string_view today) {
  store.WriteTable(fileName, Concat(SeedRow(number, today), kLineEnd));
}

std::string FreshSeed(std::string_view today) { return Concat(kFreshSeries, Right(today, kYearLength)); }

}  // namespace

bool SeedNumbers::NoneFilled() const {
  return invoices.empty() && quotations.empty() && deliveryNotes.empty() && creditNotes.empty();
}

const std::string& SeedNumbers::Reference() const { return invoices.empty() ? quotations : invoices; }

SeedNumbers ReadSeedNumbers(RecordStore& store) {
  SeedNumbers numbers;
  numbers.invoices = SeedNumberOf(store, table::kInvoices);
  numbers.quotations = SeedNumberOf(store, table::kQuotations);
  numbers.deliveryNotes = SeedNumberOf(store, table::kDeliveryNotes);
  numbers.creditNotes = SeedNumberOf(store, table::kCreditNotes);
  return numbers;
}

std::string SeedRow(std::string_view number, std::string_view date) {
  return RecordLine({"short", number, Concat(date, " "), "", "Datenbank Nummernupdate - Kontorwerk-System"});
}

void AddCreditNoteTable(RecordStore& store, const SeedNumbers& numbers, std::string_view today) {
  if (numbers.invoices.empty() || numbers.quotations.empty() || numbers.deliveryNotes.empty()) return;
  if (!numbers.creditNotes.empty()) return;
  WriteSeed(store, table::kCreditNotes, FreshSeed(today), today);
}

std::optional<std::string> FirstNumberFault(const FirstNumbers& numbers) {
  struct Check {
    const std::string& number;
    std::string_view name;
  };
  const std::array<Check, 4> checks = {{{numbers.creditNote, "Gutschriftnummer"},
                                        {numbers.deliveryNote, "Lieferscheinnummer"},
                                        {numbers.invoice, "Rechnungsnummer"},
                                        {numbers.quotation, "Angebotsnummer"}}};
  const auto fault = [](const Check& check) {
    return Concat(check.name, " weist falsches Format auf!!", kFormatExample);
  };
  for (const Check& check : checks)
    if (Len(check.number) != kNumberLength) return fault(check);
  for (const Check& check : checks)
    if (!IsNumeric(check.number)) return fault(check);
  return std::nullopt;
}

std::string NumberBefore(std::string_view firstNumber) {
  return PadZeros(NumberText(ToNumber(firstNumber).value_or(0) - 1), kNumberLength);
}

void CreateDocumentTables(RecordStore& store, const FirstNumbers& numbers, std::string_view yearLabel,
                          std::string_view today) {
  const auto seed = [&](const std::string& firstNumber) { return Concat(NumberBefore(firstNumber), yearLabel); };
  WriteSeed(store, table::kInvoices, seed(numbers.invoice), today);
  WriteSeed(store, table::kQuotations, seed(numbers.quotation), today);
  WriteSeed(store, table::kDeliveryNotes, seed(numbers.deliveryNote), today);
  // Kept: credit notes begin with the number of the invoices, whatever was typed for them; the firms' bookkeeping
  // counts on the two series starting alike.
  WriteSeed(store, table::kCreditNotes, seed(numbers.invoice), today);
}

YearState CompareYears(std::string_view today, std::string_view reference) {
  const std::string_view calendarYear = Right(today, kYearLength);
  const std::string_view dataYear = Right(reference, kYearLength);
  if (calendarYear > dataYear) return YearState::NewYear;
  return calendarYear < dataYear ? YearState::DataNewerThanCalendar : YearState::Same;
}

std::string NewYearQuestion(std::string_view year) {
  return Concat("Kontorwerk hat festgestellt, dass ein neues Jahr begonnen hat und wünscht im\r\n"_t,
                "neuen Geschäftsjahr viel Erfolg!\r\n"_t, "Sollen die Belegnummern auf 0101/", year,
                " gesetzt werden?\r\n\r\n", "Sobald die Datenbanken auf das Neue Jahr upgedatet wurden\r\n",
                "kann kein Beleg mehr für das alte Jahr geschrieben werden!"_t);
}

std::string NewYearReport(std::string_view year) {
  const auto line = [year](std::string_view kind) {
    return Concat("Erste ", kind, " im Jahr ", year, ": 0101/", year, kLineEnd);
  };
  return Concat("Die Belegenummern wurden wie folgt angelegt:\r\n", line("Angebotsnummer"), line("Lieferscheinnummer"),
                line("Rechnungsnummer"), line("Gutschriftnummer"), kLineEnd,
                "Sollten Sie die Nummern ändern wollen, klicken Sie auf Administration."_t);
}

void StartNewYear(RecordStore& store, std::string_view today) {
  const std::string seed = SeedRow(FreshSeed(today), today);
  for (const std::string_view fileName :
       {table::kInvoices, table::kQuotations, table::kDeliveryNotes, table::kCreditNotes})
    store.PrependRow(fileName, seed);
}

}  // namespace kontorwerk
