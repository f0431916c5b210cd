// The four document tables at the start of the program: which numbers they stand at, how they are made on a first
// start, and how a new business year opens a new series of numbers. Questions and messages are asked by the screens;
// their texts are made here.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "store/RecordStore.h"

namespace kontorwerk {

// Field 2 of the first row of each document table; empty where there is no table or no number.
struct SeedNumbers {
  std::string invoices;
  std::string quotations;
  std::string deliveryNotes;
  std::string creditNotes;

  [[nodiscard]] bool NoneFilled() const;
  // The number whose year the calendar is compared with: that of the invoices, else that of the quotations.
  [[nodiscard]] const std::string& Reference() const;
};

[[nodiscard]] SeedNumbers ReadSeedNumbers(RecordStore& store);

// The row on top of a series: the last number given out ("0100/2026") and the day on which the row was made. The
// date has one blank behind it; there is no closing apostrophe and no line end.
[[nodiscard]] std::string SeedRow(std::string_view number, std::string_view date);

// A data folder of an older version has no credit notes: where the other three tables have a number, the table is
// made with the seed "0100/" and the year of `today` (a date text). Does nothing otherwise.
void AddCreditNoteTable(RecordStore& store, const SeedNumbers& numbers, std::string_view today);

// The first numbers that a user wants to give out, four digits each, without the year.
struct FirstNumbers {
  std::string invoice;
  std::string quotation;
  std::string deliveryNote;
  std::string creditNote;
};

// The message about the first number that is not four characters long, else about the first that is not numeric;
// nothing if all are right.
[[nodiscard]] std::optional<std::string> FirstNumberFault(const FirstNumbers& numbers);
// "0101" as the last number used: "0100".
[[nodiscard]] std::string NumberBefore(std::string_view firstNumber);
// Makes the four tables anew, each with its seed row; `yearLabel` is "/2026". A table that cannot be written is left
// out silently: the next start finds it missing.
void CreateDocumentTables(RecordStore& store, const FirstNumbers& numbers, std::string_view yearLabel,
                          std::string_view today);

enum class YearState { Same, NewYear, DataNewerThanCalendar };

// Years as the last four characters, compared as text.
[[nodiscard]] YearState CompareYears(std::string_view today, std::string_view reference);
[[nodiscard]] std::string NewYearQuestion(std::string_view year);
[[nodiscard]] std::string NewYearReport(std::string_view year);
// The seed row of the new year on top of each of the four tables, the old text unchanged behind it.
void StartNewYear(RecordStore& store, std::string_view today);

}  // namespace kontorwerk
