// A line counts for a customer only by its number: names and addresses in it are copies of the time of printing.
#include "partners/PartnerDocuments.h"

#include "receivables/OpenDocumentRecords.h"
#include "store/Numbers.h"
#include "store/RecordLine.h"
#include "store/RecordStore.h"

namespace kontorwerk {
namespace {

// An amount that is no number counts nothing.
void Add(double& sum, std::string_view amount) { sum += ToNumber(amount).value_or(0.0); }

// Of the last reminder that was sent; empty without one.
std::string_view ReminderDate(std::string_view line) {
  const std::string_view first = RecordField(line, kOpenMD1);
  const std::string_view second = RecordField(line, kOpenMD2);
  const std::string_view third = RecordField(line, kOpenMD3);
  if (!third.empty()) return third;
  return second.empty() ? first : second;
}

}  // namespace

PartnerDocuments PartnerDocumentsOf(std::string_view tableText, std::string_view partnerNumber) {
  PartnerDocuments result;
  double invoices = 0, deliveryNotes = 0, quotations = 0, creditNotes = 0;
  ForEachRow(tableText, [&](std::string_view line) {
    if (RecordField(line, kOpenKDNr) != partnerNumber) return;
    const auto field = [line](int column) { return std::string(RecordField(line, column)); };
    const std::string kind = field(kOpenBelegart);
    const std::string gross = field(kOpenBetrag);
    const std::string rest = field(kOpenRestbetrag);
    if (kind == "RG") Add(invoices, rest);
    if (kind == "LS") Add(deliveryNotes, gross);
    if (kind == "AB") Add(quotations, gross);
    if (kind == "GS") Add(creditNotes, gross);
    result.documents.push_back({kind, field(kOpenNumber), field(kOpenDatum), gross,
                                field(kOpenSumme), rest, std::string(ReminderDate(line))});
  });
  result.invoices = RoundedMoneyText(invoices);
  result.deliveryNotes = RoundedMoneyText(deliveryNotes);
  result.quotations = RoundedMoneyText(quotations);
  result.creditNotes = RoundedMoneyText(creditNotes);
  return result;
}

}  // namespace kontorwerk
