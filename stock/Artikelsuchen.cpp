#include "stock/Artikelsuchen.h"

#include <string>
#include <utility>
#include <vector>

#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

constexpr std::string_view kSearchCaption = "Suchen";
constexpr std::string_view kNewSearchCaption = "Neue Suche";
constexpr std::string_view kTermCaption = "Suchtext";
constexpr std::string_view kNameCaption = "Bezeichnung";

ListRow ResultRow(std::string_view row) {
  ListRow result;
  for (const int column : {kArticleNumber, kArticleName, kArticleManufacturer, kArticleNetPrice})
    result.cells.emplace_back(RecordField(row, column));
  return result;
}

}  // namespace

Artikelsuchen::Artikelsuchen(Context& context, Artikelanlegen& articleScreen)
    : Screen(context.desktop, "Artikelsuchen"),
      ArticleMask(static_cast<Screen&>(*this), context),
      Datenübernahme(*this, "Datenübernahme"_t),
      löschen(*this, "löschen"_t),
      context_(context),
      articleScreen_(articleScreen) {
  WireCommands();
  WireSearchFields();
}

void Artikelsuchen::WireCommands() {
  Command4.OnClick = [this] { Propose(); };
  Command5.OnClick = [this] {
    if (Command5.Caption() == kNewSearchCaption) {
      NewSearch();
    } else {
      Search();
    }
  };
  Command6.OnClick = [this] { Edit(); };
  Command7.OnClick = [this] { Unload(); };
  Command8.OnClick = [this] { TakeOver(); };
  Command9.OnClick = [this] { SetPurchasePricesVisible(true); };
  Neuanlegen.OnClick = [this] { OpenNew(); };
  LeereMaske.OnClick = [this] { OpenNew(); };
  Datenübernahme.OnClick = [this] { OpenCopy(); };
  löschen.OnClick = [this] { Delete(); };
  Suchergebnis.OnSelect = [this] { ShowRow(); };
  Suchergebnis.OnColumnClick = [this](int column) { Suchergebnis.ToggleSort(column); };
  Suchergebnis.OnDoubleClick = [this] { UseChosen(); };
  Suchergebnis.OnKey = [this](Key& key) {
    if (!key.Is(KeyCode::Enter)) return;
    key.handled = true;
    UseChosen();
  };
}

void Artikelsuchen::WireSearchFields() {
  for (TextBox* field : SearchFields()) {
    field->OnChange = [this, field] { TermTyped(*field); };
    field->OnKey = [this](Key& key) {
      if (!key.Is(KeyCode::Enter)) return;
      key.handled = true;
      Search();
    };
  }
}

void Artikelsuchen::OnLoad() {
  RowChosen = false;
  Suchergebnis.SetColumns(ArticleListColumns());
  Bezeichnung.SetFocus();
}

void Artikelsuchen::OnUnload() {
  DocumentCall = false;
  RowChosen = false;
}

// Searching ----------------------------------------------------------------------------------------------------------

void Artikelsuchen::Search() {
  SetStatus("suchen...");
  ForgetRecord(TypedTerms());
  const std::string table = context_.store.ReadTableText(table::kArticles);
  std::vector<ListRow> rows;
  for (const std::string_view row : FindArticles(table, {Kat.Text(), ArtikelNr.Text(), Bezeichnung.Text()}))
    rows.push_back(ResultRow(row));
  const int hits = static_cast<int>(rows.size());
  Suchergebnis.SetRows(std::move(rows));
  SetStatus(SearchDoneText(hits));
  Command5.SetCaption(kNewSearchCaption);
}

void Artikelsuchen::NewSearch() {
  ForgetRecord({});
  Suchergebnis.Clear();
  SetStatus({});
  Command5.SetCaption(kSearchCaption);
  Bezeichnung.SetFocus();
}

// While a record is shown its number and name stand in the search fields. The first letter of a new term empties the
// others, so that what stands in the fields is always what is looked for.
void Artikelsuchen::TermTyped(const TextBox& field) {
  if (filling_) return;
  if (RowChosen) {
    Terms terms;
    for (std::size_t i = 0; i < terms.size(); ++i)
      if (SearchFields()[i] == &field) terms[i] = field.Text();
    ForgetRecord(terms);
  }
  Command5.SetCaption(kSearchCaption);
}

// The proposal stands in the mask as a term of its own: no record has that number yet.
void Artikelsuchen::Propose() {
  filling_ = true;
  ProposeNumber();
  filling_ = false;
  if (RowChosen) ForgetRecord({Kat.Text(), ArtikelNr.Text(), ""});
  Command5.SetCaption(kSearchCaption);
}

void Artikelsuchen::ShowRow() {
  const std::string table = context_.store.ReadTableText(table::kArticles);
  const std::string_view row = FindArticleRow(table, NthWord(Suchergebnis.SelectedCell(1), 1));
  if (row.empty()) {
    ForgetRecord({});
    return;
  }
  chosen_ = ReadArticle(row);
  ShowRecord(chosen_);
  RowChosen = true;
  BezeichnungLabel.SetCaption(kNameCaption);
  Command5.SetCaption(kNewSearchCaption);
  SetStatus(Concat("Artikel angelegt am: ", chosen_.entryDate));
}

void Artikelsuchen::ShowRecord(const Article& article) {
  filling_ = true;
  FillMask(article);
  filling_ = false;
  for (OptionButton* option : {&Einzelartikel, &Mehrfachartikel}) option->SetVisible(article.stockKept);
  SetPurchasePricesVisible(false);
}

void Artikelsuchen::ForgetRecord(const Terms& terms) {
  RowChosen = false;
  ShowRecord({});
  filling_ = true;
  for (std::size_t i = 0; i < terms.size(); ++i) SearchFields()[i]->SetText(terms[i]);
  filling_ = false;
  BezeichnungLabel.SetCaption(kTermCaption);
}

// Purchase prices are not for the eyes of a customer who stands by: each record hides them again.
void Artikelsuchen::SetPurchasePricesVisible(bool visible) {
  for (TextBox* price : {&EK1, &EK2, &EK3}) price->SetVisible(visible);
}

// Working on the chosen article --------------------------------------------------------------------------------------

// What the search was opened for.
void Artikelsuchen::UseChosen() {
  if (!RowChosen) return;
  if (DocumentCall) {
    TakeOver();
  } else {
    Edit();
  }
}

void Artikelsuchen::Edit() {
  if (!RowChosen) return;
  articleScreen_.ShowExisting(chosen_);
  articleScreen_.DocumentCall = articleScreen_.DocumentCall || DocumentCall;
}

void Artikelsuchen::OpenNew() {
  articleScreen_.ShowNew();
  articleScreen_.DocumentCall = articleScreen_.DocumentCall || DocumentCall;
}

void Artikelsuchen::OpenCopy() {
  if (!RowChosen) return;
  articleScreen_.ShowCopyOf(chosen_);
  articleScreen_.DocumentCall = articleScreen_.DocumentCall || DocumentCall;
}

void Artikelsuchen::TakeOver() {
  if (!RowChosen) {
    context_.platform.Tell("Bitte erst einen Artikel auswählen!"_t);
    return;
  }
  if (!DocumentCall || !receiver_) return;
  const int row = receiver_->CurrentRow();
  if (!TakeIntoDocument(*receiver_, chosen_)) return;
  Unload();
  receiver_->FocusQuantity(row);
}

void Artikelsuchen::Delete() {
  if (!RowChosen) return;
  const std::string number = chosen_.number;
  if (!context_.platform.Ask(Concat("Artikel ", number, " wirklich löschen?"_t), "Artikel wirklich löschen?"_t)) return;
  const bool written = context_.store.RewriteTable(table::kArticles, BlankRows::Keep, [&](std::string_view row) {
    return RecordField(row, kArticleNumber) == number ? RowChange::Remove() : RowChange::Keep();
  });
  if (!written) return;
  Suchergebnis.RemoveRow(Suchergebnis.Selected());
  ForgetRecord({});
  SetStatus(Concat("Artikel ", number, " ordnungsgemäß gelöscht!"_t));
}

}  // namespace kontorwerk
