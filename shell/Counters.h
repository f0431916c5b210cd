// The figures of the centres: how many records a table's text holds. Blank lines are never counted.
#pragma once

#include <string_view>

namespace kontorwerk {

// Non-empty lines.
[[nodiscard]] int CountRecords(std::string_view tableText);

struct OrderCounts {
  int all = 0;
  int unfinished = 0;  // neither "erledigt" nor "abgebrochen"
};
[[nodiscard]] OrderCounts CountOrders(std::string_view ordersText);

struct DraftCounts {
  int all = 0;
  int quotations = 0;  // lines that begin with "AB"
  int invoices = 0;    // lines that begin with "EF": drafts of delivery notes and invoices
};
// The register's lines begin with their key and have no apostrophe.
[[nodiscard]] DraftCounts CountDrafts(std::string_view draftsText);

}  // namespace kontorwerk
