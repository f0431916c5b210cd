#include "stock/LGArtikelSuche.h"

#include <utility>
#include <vector>

#include "platform/FormDesign.h"
#include "stock/StockFromArticle.h"
#include "store/Numbers.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

ListRow ArticleListRow(std::string_view row) {
  return ListRowOf(row, {kArticleNumber, kArticleName, kArticleManufacturer, kArticleNetPrice});
}

std::string_view FindArticleRowByEan(std::string_view tableText, std::string_view ean) {
  std::string_view found;
  ForEachRow(tableText, [&](std::string_view row) {
    if (found.empty() && RecordField(row, kArticleEan) == ean) found = row;
  });
  return found;
}

ListRow StockListRow(std::string_view row) {
  return ListRowOf(row, {kStockLagerNr, kStockArtNr, kStockBezeichnung, kStockHersteller, kStockSerNr, kStockIMEINr,
                         kStockVK, kStockLagerbestand});
}

PositionContent ContentOf(const StockRecord& record) {
  return {record[kStockLagerNr],
          record[kStockArtNr],
          {record[kStockB1], record[kStockB2], record[kStockB3], record[kStockB4]},
          record[kStockVK],
          IsTrueText(record[kStockMWST2])};
}

}  // namespace

LGArtikelSuche::LGArtikelSuche(Context& context, ControlCentre& centre, GoodsReceipt& receipt,
                               LGArtikelbearbeiten& editor, Artikelanlegen& articleScreen)
    : StockSearchScreen(context, centre, receipt, editor, articleScreen, "LGArtikelSuche"),
      Suchergebnis(*this, "Suchergebnis"),
      Suchergebnis2(*this, "Suchergebnis2"),
      kplLagerbestand(*this, "kplLagerbestand") {
  WireList(Suchergebnis, [this] { ShowMasterRow(); });
  WireList(Suchergebnis2, [this] { ShowStockRow(); });
}

void LGArtikelSuche::OnLoad() {
  StockSearchScreen::OnLoad();
  // The form cannot hold a header with a bar in it.
  Suchergebnis.SetColumns({{"KAT | ArtikelNr"}, {"Bezeichnung"}, {"Hersteller"}, {"VK (Netto)"}});
  MasterRowSelected = false;
  StockRowSelected = false;
}

std::string_view LGArtikelSuche::DesignCaption() const {
  return Design() ? std::string_view(Design()->caption) : std::string_view();
}

void LGArtikelSuche::OpenIn(std::string_view caption) {
  Load();
  SetCaption(caption);
  Show();
  Bezeichnung.SetFocus();
}

void LGArtikelSuche::OpenForGoodsReceipt() {
  GoodsReceiptCall = false;
  GoodsReceiptMode = true;
  StockEditMode = false;
  DocumentCall = false;
  OpenIn("Wareneingang - Artikelsuche");
}

void LGArtikelSuche::OpenForEditing() {
  GoodsReceiptMode = false;
  StockEditMode = true;
  DocumentCall = false;
  OpenIn(DesignCaption());
}

void LGArtikelSuche::OpenForDocument() {
  DocumentCall = true;
  OpenIn(DesignCaption());
}

void LGArtikelSuche::ShowSearchAgain() {
  if (Loaded())
    Show();
  else if (GoodsReceiptMode)
    OpenForGoodsReceipt();
  else
    OpenForEditing();
}

void LGArtikelSuche::StartGoodsReceipt(std::string_view category, std::string_view digits) {
  OpenForGoodsReceipt();
  EmptyMask();
  Kat.SetText(category);
  ArtikelNr.SetText(digits);
  Search();
  if (Suchergebnis.RowCount() == 0) return;
  Suchergebnis.Select(1);
  ShowMasterRow();
  TakeOver();
}

void LGArtikelSuche::Cancel() {
  DocumentCall = false;
  Unload();
}

void LGArtikelSuche::MarkArticleCall(Artikelanlegen& articleScreen) {
  GoodsReceiptCall = GoodsReceiptMode && !DocumentCall;
  articleScreen.GoodsReceiptCall = GoodsReceiptCall;
  articleScreen.DocumentCall = DocumentCall;
}

void LGArtikelSuche::ForgetResults() {
  Suchergebnis.Clear();
  Suchergebnis2.Clear();
  MasterRowSelected = false;
  StockRowSelected = false;
}

void LGArtikelSuche::Search() {
  if (EANNr.Text().empty())
    SearchByTerms();
  else
    SearchByEan();
}

void LGArtikelSuche::SearchByTerms() {
  ForgetResults();
  const StockQuery query = Query();
  SetStatus("suche Stammartikel...");
  const std::string articles = context_.store.ReadTableText(table::kArticles);
  std::vector<ListRow> masterRows;
  for (const std::string_view row : FindArticles(articles, {query.category, query.digits, query.freeText}))
    if (RecordField(row, kArticleStockKept) == "1") masterRows.push_back(ArticleListRow(row));
  Suchergebnis.SetRows(std::move(masterRows));

  SetStatus("suche Lagerartikel...");
  const std::string stock = context_.store.ReadTableText(table::kStock);
  std::vector<ListRow> stockRows;
  for (const std::string_view row : FindStockRows(stock, query)) stockRows.push_back(StockListRow(row));
  Suchergebnis2.SetRows(std::move(stockRows));
  SetStatus(SearchDoneText(Suchergebnis.RowCount() + Suchergebnis2.RowCount()));
}

void LGArtikelSuche::PlaySound(std::string_view file) {
  context_.platform.PlaySound(Concat(context_.platform.ProgramFolder(), file));
}

// The lists stay as they are unless something was found; the field is ready for the next scan.
void LGArtikelSuche::RefuseEan(std::string_view message) {
  PlaySound("Fehler.wav");
  context_.platform.Tell(message);
  EANNr.SetFocus();
  EANNr.SelectAll();
}

void LGArtikelSuche::SearchByEan() {
  const std::string ean = EANNr.Text();
  const std::string articles = context_.store.ReadTableText(table::kArticles);
  const std::string_view article = FindArticleRowByEan(articles, ean);
  if (!article.empty() && RecordField(article, kArticleStockKept) != "1") {
    RefuseEan("Artikel mit diesem EAN-Code ist kein LagerArtikel!");
    return;
  }
  ForgetResults();
  if (!article.empty()) {
    Suchergebnis.AddRow(ArticleListRow(article));
    Suchergebnis.Select(1);
    ShowArticle(article);
  }
  SetStatus("suche Lagerartikel...");
  const std::string stock = context_.store.ReadTableText(table::kStock);
  std::vector<ListRow> stockRows;
  std::string_view lastItem;
  ForEachRow(stock, [&](std::string_view row) {
    if (RecordField(row, kStockEANNr) != ean) return;
    stockRows.push_back(StockListRow(row));
    lastItem = row;
  });
  Suchergebnis2.SetRows(std::move(stockRows));
  if (!lastItem.empty()) {
    Suchergebnis.Select(0);
    Suchergebnis2.Select(Suchergebnis2.RowCount());
    Suchergebnis2.EnsureVisible(Suchergebnis2.RowCount());
    ShowStockItem(lastItem);
  } else if (!article.empty()) {
    ShowArticle(article);
  } else {
    SetStatus(SearchDoneText(0));
    RefuseEan("Keinen Artikel bzw. Lagerartikel mit dieser EAN-Nr. gefunden!");
    return;
  }
  PlaySound("OK.wav");
  EANNr.SetFocus();
  EANNr.SelectAll();
}

void LGArtikelSuche::ShowArticle(std::string_view row) {
  MasterRowSelected = true;
  StockRowSelected = false;
  const Article article = ReadArticle(row);
  ShowRecord(StockFromArticle(article));
  SetStatus(Concat("Artikel angelegt am: ", article.entryDate));
}

void LGArtikelSuche::ShowStockItem(std::string_view row) {
  StockRowSelected = true;
  MasterRowSelected = false;
  const StockRecord record(row);
  ShowRecord(record);
  SetStatus(Concat("Status des Artikels: ", record[kStockStatus]));
}

void LGArtikelSuche::ShowMasterRow() {
  Suchergebnis2.Select(0);
  MasterRowSelected = true;
  StockRowSelected = false;
  const std::string articles = context_.store.ReadTableText(table::kArticles);
  const std::string_view row = FindArticleRow(articles, NthWord(Suchergebnis.SelectedCell(1), 1));
  if (!row.empty()) ShowArticle(row);
}

void LGArtikelSuche::ShowStockRow() {
  Suchergebnis.Select(0);
  StockRowSelected = true;
  MasterRowSelected = false;
  const std::string stock = context_.store.ReadTableText(table::kStock);
  const std::string_view row = FindStockRow(stock, ChosenStockNumber());
  if (!row.empty()) ShowStockItem(row);
}

std::string LGArtikelSuche::ChosenStockNumber() const {
  if (!StockRowSelected) return {};
  return std::string(NthWord(Suchergebnis2.SelectedCell(1), 1));
}

void LGArtikelSuche::RemoveChosenRow() {
  Suchergebnis2.RemoveRow(Suchergebnis2.Selected());
  StockRowSelected = false;
}

void LGArtikelSuche::TakeOver() {
  if (DocumentCall) {
    TakeIntoDocument();
  } else if (GoodsReceiptMode) {
    Receive();
  } else if (!StockRowSelected) {
    TellToChooseStockItem();
  } else if (StockEditMode) {
    Edit(ChosenStockNumber());
  }
}

void LGArtikelSuche::Receive() {
  if (MasterRowSelected)
    receipt_.Run(NthWord(Suchergebnis.SelectedCell(1), 1), {}, *this);
  else if (StockRowSelected && !ChosenStockNumber().empty())
    receipt_.Run(Suchergebnis2.SelectedCell(2), ChosenStockNumber(), *this);
}

void LGArtikelSuche::TakeIntoDocument() {
  const std::string stock = context_.store.ReadTableText(table::kStock);
  const std::string_view row = StockRowSelected ? FindStockRow(stock, ChosenStockNumber()) : std::string_view();
  if (row.empty()) {
    TellToChooseStockItem();
    return;
  }
  if (!positions_) return;
  const StockRecord record(row);
  const int position = positions_->CurrentRow();
  int last = FillPosition(*positions_, context_.settings, position, ContentOf(record));
  const auto addLine = [&](std::string_view label, const std::string& number) {
    if (number.empty()) return;
    last = positions_->FreeRowBehind(last);
    positions_->SetStockNumber(last, record[kStockLagerNr]);
    positions_->SetArticleNumber(last, record[kStockArtNr]);
    positions_->SetDescription(last, Concat(label, number));
  };
  addLine("SerienNr. ", record[kStockSerNr]);
  addLine("IMEINr ", record[kStockIMEINr]);
  DocumentCall = false;
  Unload();
  if (!record.SingleItem()) {
    positions_->FocusQuantity(position);
    return;
  }
  positions_->SetQuantity(position, "1");
  positions_->FocusNextFreeRow(position);
}

}  // namespace kontorwerk
