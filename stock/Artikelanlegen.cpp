#include "stock/Artikelanlegen.h"

#include <string>
#include <utility>
#include <vector>

#include "platform/Desktop.h"
#include "stock/StockRecords.h"
#include "store/Numbers.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

// The printed width of a description line.
constexpr int kDescriptionLength = 47;
constexpr int kFewCharacters = 5;
constexpr Colour kRed{255};

constexpr std::string_view kLeaveTitle = "Ohne speichern beenden";
constexpr std::string_view kLeaveQuestion = "Artikel wurde geändert. Ohne speichern beenden?"_t;
constexpr std::string_view kClearQuestion = "Artikel wurde geändert. Ohne speichern die Felder löschen?"_t;
constexpr std::string_view kCopyQuestion = "Dieser Artikel wurde geändert. Ohne speichern die Daten übernehmen?"_t;

constexpr std::string_view kItemKindHelp =
    "Einzelartikel sind Artikel, welche bsp. eine Serien oder IMEI-Nr besitzen.\r\n"
    "Beim Wareneingang wird für diesen Artikel eine extra Lagernummer vergeben!\r\n"_t
    "Wird der Artikel mit der extra Lagernummer verkauft, wird die Lagernummer\r\n"
    "aus der Lagerdatenbank entfernt!\r\n"
    "\r\n"
    "Mehrfachartikel hingegen haben keine Serien / IMEI-Nr..\r\n"
    "Beim Verkauf wird die Stückzahl des Lagerartikels entsprechend reduziert.\r\n"_t
    "Die Lagernummer des Artikels jedoch bleibt auf jeden Fall erhalten!"_t;

constexpr std::string_view kStockTitle = "Änderungen auch bei LagerArtikeln durchführen?"_t;
constexpr std::string_view kStockQuestion =
    "Sollen die geänderten Daten in den bereits eingelagerten Lagerartikeln übernommen werden?\r\n"_t
    "\r\n"
    "Achtung: Es werden ´alle´ Felder aus diesem Formular bei den eingelagerten Artikeln neu gesetzt!\r\n"_t
    "\r\n"
    "Ausnahme:\r\n"
    "Hier durchgeführe Änderungen im Notizfeld werden ´nicht´ übernommen und bleiben bei den Lagerartikeln erhalten!"_t;

}  // namespace

Artikelanlegen::Artikelanlegen(Context& context, ControlCentre& controlCentre, SupplierChooser chooseSupplier)
    : Screen(context.desktop, "Artikelanlegen"),
      ArticleMask(static_cast<Screen&>(*this), context),
      Neu_Datenübernahme(*this, "Neu_Datenübernahme"_t),
      SpÜbernahme(*this, "SpÜbernahme"_t),
      context_(context),
      controlCentre_(controlCentre),
      chooseSupplier_(std::move(chooseSupplier)) {
  WireCommands();
  WireFields();
}

void Artikelanlegen::WireCommands() {
  Command1.OnClick = [this] { ChooseSupplierFor(SupplierTarget1); };
  Command2.OnClick = [this] { ChooseSupplierFor(SupplierTarget2); };
  Command3.OnClick = [this] { ChooseSupplierFor(SupplierTarget3); };
  Command4.OnClick = [this] { ProposeNumber(); };
  Command5.OnClick = [this] { Save(); };
  Command6.OnClick = [this] { SaveAndClear(); };
  Command7.OnClick = [this] { End(); };
  Command8.OnClick = [this] { BackToSearch(); };
  Neuanlegen.OnClick = [this] { NewMask(); };
  Neu_Datenübernahme.OnClick = [this] { NewFromThis(); };
  SpÜbernahme.OnClick = [this] { SaveAndTakeOver(); };
  Label8.OnClick = [this] { context_.platform.Tell(kItemKindHelp); };
}

void Artikelanlegen::WireFields() {
  for (TextBox* field : TextFields()) field->OnChange = [this] { Changed = true; };
  Einzelartikel.OnClick = [this] { Changed = true; };
  Mehrfachartikel.OnClick = [this] { Changed = true; };
  CheckLagerartikel.OnChange = [this] {
    Changed = true;
    ShowItemKind();
  };
  MWST2_Check.OnChange = [this] {
    Changed = true;
    ComputeGross();
  };
  Kat.OnLeave = [this] { Kat.SetText(UCase(Kat.Text())); };
  ArtikelNr.OnLeave = [this] { LeaveNumber(); };
  for (TextBox* line : {&B1, &B2, &B3, &B4}) WireDescription(*line);
  for (TextBox* field : {&BestNr1, &BestNr2, &BestNr3}) WireWarning(*field, OrderNumberWarnings);
  WireWarning(EANNr, EanWarnings);
  for (TextBox* price : {&EK1, &EK2, &EK3}) price->OnLeave = [price] { price->SetText(PriceAsShown(price->Text())); };
  VK.OnLeave = [this] {
    VK.SetText(PriceAsShown(VK.Text()));
    ComputeGross();
  };
  Brutto.OnLeave = [this] {
    Brutto.SetText(PriceAsShown(Brutto.Text()));
    ComputeNet();
  };
}

void Artikelanlegen::WireDescription(TextBox& line) {
  line.OnEnter = [this, &line] {
    ShowRemaining(line);
    Label36.Show();
    Label37.Show();
  };
  line.OnChange = [this, &line] {
    Changed = true;
    ShowRemaining(line);
  };
  line.OnLeave = [this] {
    Label36.Hide();
    Label37.Hide();
  };
}

void Artikelanlegen::WireWarning(TextBox& field,
                                 std::vector<std::string> (*warnings)(std::string_view, std::string_view)) {
  field.OnLeave = [this, &field, warnings] {
    if (field.Text().empty()) return;
    const std::string table = context_.store.ReadTableText(table::kArticles);
    for (const std::string& warning : warnings(table, field.Text())) context_.platform.Tell(warning);
  };
}

void Artikelanlegen::OnLoad() {
  Changed = false;
  Kat.SetFocus();
}

void Artikelanlegen::OnUnload() {
  ArticleEditMode = false;
  Changed = false;
  DocumentCall = false;
  GoodsReceiptCall = false;
  SupplierTarget1 = SupplierTarget2 = SupplierTarget3 = false;
}

void Artikelanlegen::ShowNew() {
  const bool wasOpen = Loaded();
  Show();
  if (wasOpen) NewMask();
}

void Artikelanlegen::ShowExisting(const Article& article) {
  Load();
  FillMask(article);
  ArticleEditMode = true;
  SetNumberOpen(false);
  SetStatus(Concat("Artikel angelegt am: ", article.entryDate));
  Bezeichnung.SetFocus();
  Changed = false;
  Show();
}

void Artikelanlegen::ShowCopyOf(const Article& article) {
  Load();
  FillMask(article);
  SetStatus({});
  StartNewRecord();
  Show();
}

// Leaving the number -------------------------------------------------------------------------------------------------

void Artikelanlegen::LeaveNumber() {
  if (ArtikelNr.Text().empty()) return;
  if (ArtikelNr.Text().front() == '#') {
    RefuseNumber("Artikelnummern dürfen kein '#' enthalten!\r\nDieses Zeichen ist für Lagernummern vorbehalten!"_t);
    return;
  }
  if (!IsNumeric(ArtikelNr.Text())) {
    RefuseNumber("Artikelnummern dürfen 'nur' im Kategoriefeld 'Text' enthalten!"_t);
    return;
  }
  if (ArticleEditMode) return;
  const std::string number = ArticleNumber();
  if (!ArticleNumberTaken(context_.store.ReadTableText(table::kArticles), number)) return;
  context_.platform.Tell(
      Concat("ArtikelNummer ", number, " bereits vorhanden!!!\r\nBitte neue ArtikelNummer vergeben!"));
  // Kept: the focus goes on; only a number of the wrong form holds it.
  ArtikelNr.Clear();
}

void Artikelanlegen::RefuseNumber(std::string_view why) {
  context_.platform.Tell(why);
  ArtikelNr.Clear();
  ArtikelNr.SetFocus();
}

// Fields that answer at once -----------------------------------------------------------------------------------------

void Artikelanlegen::ShowRemaining(const TextBox& line) {
  const int remaining = kDescriptionLength - Len(line.Text());
  Label37.SetCaption(std::to_string(remaining));
  Label37.SetForeColour(remaining < kFewCharacters ? std::optional<Colour>(kRed) : std::nullopt);
}

void Artikelanlegen::ShowItemKind() {
  for (Control* control : std::initializer_list<Control*>{&Einzelartikel, &Mehrfachartikel, &Label6, &Label7, &Label8})
    control->SetVisible(CheckLagerartikel.Checked());
}

void Artikelanlegen::ComputeGross() {
  const auto gross = GrossPriceText(VK.Text(), VatFactor(context_.settings, MWST2_Check.Checked()));
  if (gross) Brutto.SetText(*gross);
}

void Artikelanlegen::ComputeNet() {
  const auto net = NetPriceText(Brutto.Text(), VatFactor(context_.settings, MWST2_Check.Checked()));
  if (net) VK.SetText(*net);
}

void Artikelanlegen::ChooseSupplierFor(bool& target) {
  const Screen* search = context_.desktop.Find("LFsuchen");
  if (search && search->Visible()) {
    context_.platform.Tell(
        "Das Fenster zum Lieferanten suchen ist bereits geöffnet!\r\nBitte Fenster schließen und erneut versuchen."_t);
    return;
  }
  SupplierTarget1 = SupplierTarget2 = SupplierTarget3 = false;
  target = true;
  if (chooseSupplier_)
    chooseSupplier_({[this](std::string_view name) { TakeSupplier(name); }, [this] { return WaitsForSupplier(); }});
}

bool Artikelanlegen::TakeSupplier(std::string_view name) {
  if (!WaitsForSupplier()) return false;
  TextBox& field = SupplierTarget1 ? Lieferant1 : SupplierTarget2 ? Lieferant2 : Lieferant3;
  SupplierTarget1 = SupplierTarget2 = SupplierTarget3 = false;
  field.SetText(name);
  return true;
}

// Saving -------------------------------------------------------------------------------------------------------------

bool Artikelanlegen::NumberInOrder() {
  if (Len(Kat.Text()) != kCategoryLength || Len(ArtikelNr.Text()) != kArticleDigits) {
    context_.platform.Tell(
        "Bitte korrekte ArtikelNr vergeben\r\nBsp. NET  50302\r\n"
        "Kategorie muss 3 stellig sein, Art.Nr. muss 5 stellig sein!");
    ArtikelNr.SetFocus();
    return false;
  }
  if (!IsNumeric(ArtikelNr.Text())) {
    context_.platform.Tell("Bitte numerische ArtikelNr vergeben\r\nBsp. 50302");
    ArtikelNr.SetFocus();
    return false;
  }
  return true;
}

bool Artikelanlegen::Save() {
  if (!NumberInOrder()) return false;
  SetStatus("speichern... Bitte warten!");
  // A menu entry saves without the category having been left.
  if (!ArticleEditMode) Kat.SetText(UCase(Kat.Text()));
  const Article article = MaskArticle();
  const bool replaced = ArticleEditMode;
  if (!WriteArticle(article)) {
    // Nothing was written and nothing is claimed; the article stays on the screen as changed.
    SetStatus({});
    return false;
  }
  ArticleEditMode = true;
  SetStatus(Concat("Änderungen des Artikels "_t, article.name, " / ArtikelNr. ", article.number, " gespeichert!"));
  if (replaced) PassOnToStock(article);
  Changed = false;
  SetNumberOpen(false);
  return true;
}

// Kept: a replacing save leaves the table one blank line longer, as every version before did.
bool Artikelanlegen::WriteArticle(Article article) {
  if (!ArticleEditMode) {
    article.entryDate = context_.platform.TodayText();
    return context_.store.AppendRow(table::kArticles, ArticleLine(article));
  }
  return context_.store.RewriteTable(table::kArticles, BlankRows::Keep, [&article](std::string_view row) {
    if (RecordField(row, kArticleNumber) != article.number) return RowChange::Keep();
    article.entryDate = RecordField(row, kArticleEntryDate);
    return RowChange::Replace(ArticleLine(article));
  });
}

void Artikelanlegen::PassOnToStock(Article article) {
  article.number = Concat(UCase(Kat.Text()), ArtikelNr.Text());
  if (InStr(context_.store.ReadTableText(table::kStock), article.number) == 0) return;
  if (!context_.platform.Ask(kStockQuestion, kStockTitle)) {
    SetStatus("Keine Änderungen bei den LagerArtikeln durchgeführt!"_t);
    return;
  }
  // Kept: an article that is no longer kept in stock leaves its stock rows alone, and the status says the same.
  if (CheckLagerartikel.Checked()) {
    context_.store.RewriteTable(table::kStock, BlankRows::Keep, [&article](std::string_view row) {
      if (RecordField(row, kStockArtNr) != article.number) return RowChange::Keep();
      return RowChange::Replace(StockRowOfArticle(row, article));
    });
    controlCentre_.CountStockItems();
  }
  SetStatus("Änderungen des Artikelstamms auch bei den LagerArtikeln durchgeführt!"_t);
}

void Artikelanlegen::SaveAndClear() {
  if (!Save()) return;
  ClearMask();
  StartNewRecord();
}

void Artikelanlegen::SaveAndTakeOver() {
  if (!Save()) return;
  if (DocumentCall && receiver_) {
    const int row = receiver_->CurrentRow();
    if (!TakeIntoDocument(*receiver_, MaskArticle())) return;
    Unload();
    receiver_->FocusQuantity(row);
  } else if (GoodsReceiptCall) {
    CloseForGoodsReceipt();
  }
}

// The mask is read before it closes: the receipt waits for its own dialogs meanwhile.
void Artikelanlegen::CloseForGoodsReceipt() {
  const std::string category = Kat.Text();
  const std::string digits = ArtikelNr.Text();
  Unload();
  if (goodsReceipt_) goodsReceipt_->StartGoodsReceipt(category, digits);
}

// Leaving and starting over ------------------------------------------------------------------------------------------

Artikelanlegen::Leaving Artikelanlegen::AskToLeave(std::string_view question) {
  if (!Changed) return Leaving::Discard;
  switch (context_.platform.Box(question, kLeaveTitle, Buttons::YesNoCancel)) {
    case Answer::Yes:
      Changed = false;
      return Leaving::Discard;
    case Answer::No:
      return Save() ? Leaving::Saved : Leaving::SaveRefused;
    default:
      return Leaving::Stay;
  }
}

void Artikelanlegen::End() {
  const Leaving leaving = AskToLeave(kLeaveQuestion);
  if (leaving == Leaving::Stay || leaving == Leaving::SaveRefused) return;
  if (!GoodsReceiptCall) {
    Unload();
  } else if (leaving == Leaving::Discard) {
    Unload();
    if (goodsReceipt_) goodsReceipt_->ShowForGoodsReceipt();
  } else if (context_.platform.Ask("Wollen Sie nun direkt den Wareneingang durchführen?"_t,
                                   "Wareneingang direkt durchführen?"_t)) {
    CloseForGoodsReceipt();
  } else {
    Unload();
  }
}

void Artikelanlegen::BackToSearch() {
  const Leaving leaving = AskToLeave(kLeaveQuestion);
  if (leaving == Leaving::Stay || leaving == Leaving::SaveRefused) return;
  Unload();
  if (Screen* search = context_.desktop.Find("Artikelsuchen")) search->Show();
}

void Artikelanlegen::NewMask() {
  const Leaving leaving = AskToLeave(kClearQuestion);
  if (leaving == Leaving::Stay || leaving == Leaving::SaveRefused) return;
  ClearMask();
  if (leaving == Leaving::Discard) SetStatus({});
  StartNewRecord();
}

void Artikelanlegen::NewFromThis() {
  const Leaving leaving = AskToLeave(kCopyQuestion);
  if (leaving == Leaving::Stay) return;
  // Kept: a refused save does not hold the copy up; what would have been lost is still on the screen.
  if (leaving == Leaving::Discard) SetStatus({});
  StartNewRecord();
}

// The mask as it stands becomes a record of its own, without a number yet.
void Artikelanlegen::StartNewRecord() {
  ArticleEditMode = false;
  SetNumberOpen(true);
  Kat.Clear();
  ArtikelNr.Clear();
  Kat.SetFocus();
  Changed = false;
}

void Artikelanlegen::SetNumberOpen(bool open) {
  Kat.SetEnabled(open);
  ArtikelNr.SetEnabled(open);
  Command4.SetEnabled(open);
}

}  // namespace kontorwerk
