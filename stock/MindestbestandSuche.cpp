#include "stock/MindestbestandSuche.h"

#include <utility>
#include <vector>

#include "store/Numbers.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr std::string_view kSeveralPieces = "mehrere";

// Columns of the list.
constexpr int kListStockNumber = 1;
constexpr int kListArticle = 2;
constexpr int kListQuantity = 7;

ListRow ShortfallListRow(const Shortfall& shortfall) {
  ListRow row = ListRowOf(shortfall.row, {kStockLagerNr, kStockArtNr, kStockBezeichnung, kStockHersteller, kStockVK,
                                          kStockMindestMenge, kStockLagerbestand});
  if (shortfall.single) {
    row.cells[kListStockNumber - 1] = kSeveralPieces;
    row.cells[kListQuantity - 1] = std::to_string(shortfall.pieces);
  }
  return row;
}

}  // namespace

MindestbestandSuche::MindestbestandSuche(Context& context, ControlCentre& centre, GoodsReceipt& receipt,
                                         LGArtikelbearbeiten& editor, Artikelanlegen& articleScreen)
    : StockSearchScreen(context, centre, receipt, editor, articleScreen, "MindestbestandSuche"),
      Suchergebnis(*this, "Suchergebnis"),
      Command1(*this, "Command1"),
      Command2(*this, "Command2") {
  WireList(Suchergebnis, [this] { ShowRow(); });
  Command1.OnClick = [this] { Receive(); };
  Command2.OnClick = [this] {
    EmptyMask();
    FillList({}, {});
  };
}

void MindestbestandSuche::OnLoad() {
  StockSearchScreen::OnLoad();
  FillList({}, {});
}

void MindestbestandSuche::ShowSearchAgain() {
  if (Loaded()) {
    EmptyMask();
    FillList({}, {});
  }
  Show();
}

void MindestbestandSuche::Search() { FillList(Query(), EANNr.Text()); }

void MindestbestandSuche::FillList(const StockQuery& query, std::string_view ean) {
  SetStatus("suche Lagerartikel...");
  // Kept: this list spells the table's name in its own way; it is the same file.
  const std::string stock = context_.store.ReadTableText("Lagerartikeldb.dbf");
  std::vector<ListRow> rows;
  for (const Shortfall& shortfall : FindShortfalls(stock)) {
    const bool wanted =
        ean.empty() ? MatchesQuery(shortfall.row, query) : RecordField(shortfall.row, kStockEANNr) == ean;
    if (wanted) rows.push_back(ShortfallListRow(shortfall));
  }
  Suchergebnis.SetRows(std::move(rows));
  SetStatus(SearchDoneText(Suchergebnis.RowCount()));
}

std::string MindestbestandSuche::ChosenStockNumber() const {
  const std::string_view number = NthWord(Suchergebnis.SelectedCell(kListStockNumber), 1);
  return number == kSeveralPieces ? std::string() : std::string(number);
}

std::string_view MindestbestandSuche::ChosenRow(std::string_view stock) const {
  if (Suchergebnis.Selected() == 0) return {};
  const std::string number = ChosenStockNumber();
  return number.empty() ? FirstRowOfArticle(stock, Suchergebnis.SelectedCell(kListArticle))
                        : FindStockRow(stock, number);
}

void MindestbestandSuche::ShowRow() {
  const std::string stock = context_.store.ReadTableText(table::kStock);
  const std::string_view row = ChosenRow(stock);
  if (row.empty()) return;
  StockRecord record(row);
  if (ChosenStockNumber().empty()) {
    // Stands for all pieces: what belongs to one of them alone is not shown.
    record[kStockLagerNr] = kSeveralPieces;
    record[kStockLagerbestand] = Suchergebnis.SelectedCell(kListQuantity);
    for (const StockColumn own : {kStockSerNr, kStockIMEINr, kStockLagerOrt, kStockLagerplatz}) record[own].clear();
  }
  ShowRecord(record);
  SetStatus(Concat("Status des Artikels: ", record[kStockStatus]));
}

void MindestbestandSuche::Receive() {
  if (Suchergebnis.Selected() == 0) return;
  GoodsReceiptMode = true;
  StockEditMode = false;
  receipt_.Run(Suchergebnis.SelectedCell(kListArticle), ChosenStockNumber(), *this);
}

void MindestbestandSuche::TakeOver() {
  const std::string stock = context_.store.ReadTableText(table::kStock);
  const std::string_view row = ChosenRow(stock);
  if (row.empty()) {
    TellToChooseStockItem();
    return;
  }
  GoodsReceiptMode = false;
  StockEditMode = true;
  Edit(RecordField(row, kStockLagerNr));
}

}  // namespace kontorwerk
