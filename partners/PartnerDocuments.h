// The open documents of one customer with the sum of each kind, as the customer search shows them.
// What else the table of open documents holds is the business of the receivables.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

// The columns of the table of open documents that a customer's overview reads, counted from 1.
namespace opendocument {
inline constexpr int kKind = 1;  // "AB", "RG", "LS" or "GS"
inline constexpr int kNumber = 2;
inline constexpr int kDate = 3;
inline constexpr int kPartnerNumber = 4;
inline constexpr int kGross = 18;
inline constexpr int kRest = 19;
inline constexpr int kPaid = 20;
inline constexpr int kFirstReminder = 59;
inline constexpr int kSecondReminder = 60;
inline constexpr int kThirdReminder = 61;
}  // namespace opendocument

struct PartnerDocument {
  std::string kind, number, date, gross, paid, rest, reminderDate;
};

struct PartnerDocuments {
  std::vector<PartnerDocument> documents;  // in the order of the table
  // Money texts; "0,00" for a kind without a document. Invoices count with their rest, the other kinds gross.
  std::string invoices, deliveryNotes, quotations, creditNotes;
};

[[nodiscard]] PartnerDocuments PartnerDocumentsOf(std::string_view tableText, std::string_view partnerNumber);

}  // namespace kontorwerk
