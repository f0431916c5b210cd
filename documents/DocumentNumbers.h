// The numbers of documents: their format, their reserved forms, and the next one of a series. The top line of a table
// alone decides; nothing is searched, no gap is filled.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "documents/DocumentKinds.h"

namespace kontorwerk {

inline constexpr int kDocumentNumberLength = 9;  // "0150/2007"
inline constexpr int kNumberDigits = 4;

// Nine characters: the only check of a typed number.
[[nodiscard]] bool HasNumberFormat(std::string_view number);
// "????/2007": the number is still to be issued.
[[nodiscard]] bool IsPendingNumber(std::string_view number);
// "----/2007": only a delivery note exists.
[[nodiscard]] bool IsDeliveryNoteOnly(std::string_view number);

// "????/", "----/" and "/" (the user types the digits in front) before the year of the date text.
[[nodiscard]] std::string PendingNumber(std::string_view datum);
[[nodiscard]] std::string DeliveryNoteOnlyNumber(std::string_view datum);
[[nodiscard]] std::string NumberToType(std::string_view datum);
// The number with the year of the date: its first five characters and the date's last four.
[[nodiscard]] std::string WithYearOf(std::string_view number, std::string_view datum);

// The number behind that of the table's top line, with the year of the document date: field 2 for quotations, delivery
// notes and credit notes, the second word for invoices (NextNumberByWords). At least four digits: "9999" is followed
// by "10000". A top line that is empty or whose number is none gives
//   "0001/2007" for delivery notes and credit notes,
//   "????/2007" for quotations, whose first document is stored without a number,
//   nothing for invoices: the user is asked for the first number.
[[nodiscard]] std::optional<std::string> NextNumber(DocumentKind kind, std::string_view topLine,
                                                    std::string_view datum);
// The same for invoices, drafts and notes: every comma of the line turns to a blank and the second word holds the
// number behind its apostrophe. Nothing if there is none.
[[nodiscard]] std::optional<std::string> NextNumberByWords(std::string_view topLine, std::string_view datum);
// True for a quotation's next number "0000/...", on which the user is asked for the first number.
[[nodiscard]] bool AsksForFirstNumber(std::string_view number);

}  // namespace kontorwerk
