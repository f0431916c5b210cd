#include "stock/StockSearchScreen.h"

#include <utility>
#include <vector>

#include "stock/StockFromArticle.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {

StockSearchScreen::StockSearchScreen(Context& context, ControlCentre& centre, GoodsReceipt& receipt,
                                     LGArtikelbearbeiten& editor, Artikelanlegen& articleScreen, std::string_view name)
    : Screen(context.desktop, name),
      StockSearchMask(static_cast<Screen&>(*this)),
      Command5(*this, "Command5"),
      Command7(*this, "Command7"),
      Command8(*this, "Command8"),
      Command9(*this, "Command9"),
      NEWArtikelanlegen(*this, "NEWArtikelanlegen"),
      LeereMaske(*this, "LeereMaske"),
      Datenübernahme(*this, "Datenübernahme"_t),
      LGArtikel_löschen(*this, "LGArtikel_löschen"_t),
      aktSuchergebnis(*this, "aktSuchergebnis"),
      Artikeldruck(*this, "Artikeldruck"),
      StatusBar1(*this, "StatusBar1"),
      context_(context),
      centre_(centre),
      receipt_(receipt),
      editor_(editor),
      articleScreen_(articleScreen) {
  Command5.OnClick = [this] { Search(); };
  Command7.OnClick = [this] { Cancel(); };
  Command8.OnClick = [this] { TakeOver(); };
  Command9.OnClick = [this] { ShowPurchasePrices(); };
  NEWArtikelanlegen.OnClick = [this] { NewArticle(); };
  LeereMaske.OnClick = [this] { NewArticle(); };
  Datenübernahme.OnClick = [this] { TakeDataOver(); };
  LGArtikel_löschen.OnClick = [this] { DeleteItem(); };
  SearchOnEnter([this] { Search(); });
}

void StockSearchScreen::WireList(ListView& list, std::function<void()> showRow) {
  list.OnSelect = std::move(showRow);
  list.OnDoubleClick = [this, &list] {
    if (list.Selected() > 0) TakeOver();
  };
  list.OnKey = [this](Key& key) {
    if (!key.Is(KeyCode::Enter)) return;
    key.handled = true;
    TakeOver();
  };
  list.OnColumnClick = [&list](int column) { list.ToggleSort(column); };
}

bool StockSearchScreen::Edit(std::string_view stockNumber) {
  const std::string stock = context_.store.ReadTableText(table::kStock);
  const std::string_view row = FindStockRow(stock, stockNumber);
  if (row.empty() || !editor_.ReadyForAnother()) return false;
  // Read again: the question may have saved another version of the same record.
  const std::string present = context_.store.ReadTableText(table::kStock);
  editor_.OpenForEditing(*this, StockRecord(FindStockRow(present, stockNumber)));
  return true;
}

void StockSearchScreen::NewArticle() {
  MarkArticleCall(articleScreen_);
  articleScreen_.ShowNew();
  Unload();
}

void StockSearchScreen::TakeDataOver() {
  if (!context_.platform.Ask("Wollten Sie nun das Lager-Center verlassen, um einen neuen Artikel anzulegen?",
                             "Lagercenter verlassen?"))
    return;
  Article article = ArticleFromStock(MaskRecord());
  article.number.clear();
  MarkArticleCall(articleScreen_);
  articleScreen_.ShowCopyOf(article);
  Unload();
}

void StockSearchScreen::DeleteItem() {
  const std::string number = ChosenStockNumber();
  if (number.empty()) {
    context_.platform.Tell(
        "Bitte wählen Sie eine Lagerposition aus. Sollten Sie einen Stammartikel\r\n"
        "löschen wollen, dann löschen Sie diesen im Artikel-Center!"_t);
    return;
  }
  if (!context_.platform.Ask(Concat("LagerArtikel ", number, " wirklich löschen?"_t),
                             "LagerArtikel wirklich löschen?"_t))
    return;
  if (!RemoveStockRecord(context_.store, number)) return;
  RemoveChosenRow();
  EmptyMask();
  SetStatus(Concat("Lagerartikel ", number, " ordnungsgemäß gelöscht!"_t));
  centre_.CountStockItems();
}

ListRow ListRowOf(std::string_view record, std::initializer_list<int> columns) {
  const std::vector<std::string_view> fields = RecordFields(record);
  ListRow row;
  row.cells.reserve(columns.size());
  for (const int column : columns) {
    const auto place = static_cast<std::size_t>(column) - 1;
    row.cells.emplace_back(place < fields.size() ? fields[place] : std::string_view());
  }
  return row;
}

}  // namespace kontorwerk
