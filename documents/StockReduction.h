// What a printed delivery note or invoice takes out of the stock, right away or for the documents of a collective
// invoice.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "documents/PositionGrid.h"
#include "store/RecordStore.h"

namespace kontorwerk {

// True for a delivery note or invoice that was new in this run: the selector stands on one of the two now and stood on
// the open place when saving began.
[[nodiscard]] bool MovesGoods(int selectorPlace, int startKind);

// For each row with a stock number, in order: every stock line whose number holds it, case aside, loses the row's
// quantity and gets "Warenausgang am <today> - Menge: <quantity>" as its field 36, the only one behind field 35. A
// single item's line is removed. A quantity (or a stock) that is no number leaves field 4 empty. The table gains one
// blank line for each such row. False if nothing was written; true without such a row.
bool TakeOutOfStock(RecordStore& store, const std::vector<PositionRow>& rows, std::string_view today);

// An entry of the pending stock list: a blank, then "'<LGNr>','<quantity>".
[[nodiscard]] std::string PendingStockEntry(std::string_view LGNr, std::string_view quantity);
// Takes the first entry of the list out of the stock, by exact stock number; blank lines of the table go. Entries
// behind the first have no effect. Run it on an invoice only; the caller then empties its list. True for an empty list.
bool TakePendingOutOfStock(RecordStore& store, std::string_view pendingList, std::string_view today);

}  // namespace kontorwerk
