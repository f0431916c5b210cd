// Rows as a German firm has them, made from their place in the table alone: the same number gives the same row in each
// run. Lengths and fill of the fields follow what customers, articles and documents of a small trading firm look like.
#pragma once

#include <string>
#include <string_view>

#include "documents/DocumentRecord.h"
#include "store/Text.h"

namespace kontorwerk::bench {

// Stands in one customer, one article and one stock item of each firm.
inline constexpr std::string_view kRareText = "Wolkenstein";
// Stands in one row of a hundred of the same tables; typed in lower case, as users do.
inline constexpr std::string_view kTownText = "bad tölz"_t;
// Two letters that stand in no row.
inline constexpr std::string_view kShortText = "qx";

inline constexpr std::string_view kToday = "16.11.2026";

// Rows without line end; `index` counts from 0, `rows` is the size of the table.
[[nodiscard]] std::string CustomerRow(long index, long rows);
[[nodiscard]] std::string SupplierRow(long index, long rows);
[[nodiscard]] std::string ArticleRow(long index, long rows);
// Every third item is a single one.
[[nodiscard]] std::string StockRow(long index, long rows);
// Single items alone, four of an article with a minimum of ten: the worst case of the stock reminder.
[[nodiscard]] std::string SinglePieceRow(long index);
[[nodiscard]] std::string OrderRow(long index, long rows);
[[nodiscard]] std::string AppointmentRowOf(long index);
// Invoices, quotations and delivery notes of the last months, a part with payments and reminders.
[[nodiscard]] std::string OpenDocumentRow(long index);
// A document of three to six positions. The newest one, index 0, stands on top of its table.
[[nodiscard]] std::string DocumentRow(DocumentKind kind, long index, long rows);
[[nodiscard]] DocumentRecord MakeDocument(DocumentKind kind, long index, long rows);
[[nodiscard]] PositionRow MakePosition(long index);
[[nodiscard]] std::string DraftRow(long index);

[[nodiscard]] std::string CustomerNumber(long index);
[[nodiscard]] std::string ArticleNumber(long index);
[[nodiscard]] std::string StockNumber(long index);

}  // namespace kontorwerk::bench
