#include "documents/DocumentNumbers.h"

#include "store/Numbers.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr int kYearLength = 4;
constexpr int kNumberField = 2;
constexpr std::string_view kPending = "????";
constexpr std::string_view kDeliveryNoteOnly = "----";

std::string WithYear(std::string_view digits, std::string_view datum) {
  return Concat(digits, "/", Right(datum, kYearLength));
}

// Four digits at least, and the year; nothing if `digits` are no number.
std::optional<std::string> NumberBehind(std::string_view digits, std::string_view datum) {
  const std::optional<double> last = ToNumber(digits);
  if (!last) return std::nullopt;
  // Kept: 9999 is followed by 10000, which the check of the format then refuses; a firm opens a new series before.
  return WithYear(PadZeros(NumberText(*last + 1), kNumberDigits), datum);
}

}  // namespace

bool HasNumberFormat(std::string_view number) { return Len(number) == kDocumentNumberLength; }

bool IsPendingNumber(std::string_view number) { return Left(number, kNumberDigits) == kPending; }

bool IsDeliveryNoteOnly(std::string_view number) { return Left(number, kNumberDigits) == kDeliveryNoteOnly; }

std::string PendingNumber(std::string_view datum) { return WithYear(kPending, datum); }

std::string DeliveryNoteOnlyNumber(std::string_view datum) { return WithYear(kDeliveryNoteOnly, datum); }

std::string NumberToType(std::string_view datum) { return WithYear("", datum); }

std::string WithYearOf(std::string_view number, std::string_view datum) {
  return Concat(Left(number, kNumberDigits + 1), Right(datum, kYearLength));
}

std::optional<std::string> NextNumber(DocumentKind kind, std::string_view topLine, std::string_view datum) {
  if (kind == DocumentKind::Invoice) return NextNumberByWords(topLine, datum);
  // Kept: the top line alone decides, be it a marker or not the highest number; firms steer their series by it.
  if (auto next = NumberBehind(Left(RecordField(topLine, kNumberField), kNumberDigits), datum)) return next;
  // Kept: the first quotation of a table without numbers is stored as "????/yyyy", no number is made up for it.
  if (kind == DocumentKind::Quotation) return PendingNumber(datum);
  return NumberBehind("0", datum);
}

std::optional<std::string> NextNumberByWords(std::string_view topLine, std::string_view datum) {
  const std::string words = Replace(topLine, ",", " ");
  return NumberBehind(Mid(NthWord(words, kNumberField), 2, kNumberDigits), datum);
}

bool AsksForFirstNumber(std::string_view number) {
  // Kept: only the top number "-001" leads here; an empty table does not.
  return Left(number, kNumberDigits) == "0000";
}

}  // namespace kontorwerk
