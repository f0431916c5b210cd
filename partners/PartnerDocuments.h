// The open documents of one customer with the sum of each kind, as the customer search shows them.
// What else the table of open documents holds is the business of the receivables.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace kontorwerk {

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
