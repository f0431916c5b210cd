#include "stock/LGArtikelbearbeiten.h"

#include "stock/ArticleRecords.h"
#include "store/Numbers.h"
#include "store/Text.h"

namespace kontorwerk {

LGArtikelbearbeiten::LGArtikelbearbeiten(Context& context, ControlCentre& centre)
    : Screen(context.desktop, "LGArtikelbearbeiten"),
      StockMask(static_cast<Screen&>(*this)),
      Command5(*this, "Command5"),
      Command7(*this, "Command7"),
      Command8(*this, "Command8"),
      Command9(*this, "Command9"),
      Artikeldrucken(*this, "Artikeldrucken"),
      Label31(*this, "Label31"),
      StatusBar1(*this, "StatusBar1"),
      context_(context),
      centre_(centre) {
  Command5.OnClick = [this] { Save(); };
  Command7.OnClick = [this] { End(); };
  Command8.OnClick = [this] { BackToSearch(); };
  WireFields();
  WirePrices();
}

void LGArtikelbearbeiten::WireFields() {
  for (TextBox* field : TextFields()) field->OnChange = [this] { Changed = true; };
  for (TextBox* field : {&MindestMenge, &SollMenge}) field->OnChange = [this] { NoteMinimumChange(); };
  Lagerbestand.OnLeave = [this] { CheckQuantity(); };
  Einzel_Check.OnChange = [this] { Changed = true; };
  MWST2_Check.OnChange = [this] { Changed = true; };
  // By the user only: a record brings both of its prices along.
  MWST2_Check.OnClick = [this] { ComputeGross(); };
}

void LGArtikelbearbeiten::WirePrices() {
  for (TextBox* price : {&aktEK, &EK1, &EK2, &EK3})
    price->OnLeave = [price] { price->SetText(PriceAsShown(price->Text())); };
  VK.OnLeave = [this] {
    VK.SetText(PriceAsShown(VK.Text()));
    ComputeGross();
  };
  Brutto.OnLeave = [this] {
    Brutto.SetText(PriceAsShown(Brutto.Text()));
    ComputeNet();
  };
}

void LGArtikelbearbeiten::OnLoad() {
  Label31.SetCaption(RateCaption(context_.settings.MWSTSatz2));
  Changed = false;
  MinSollChanged = false;
}

bool LGArtikelbearbeiten::ReadyForAnother() { return !Visible() || LeavingAllowed(); }

void LGArtikelbearbeiten::Open(StockCaller& caller, const StockRecord& record, Purpose purpose) {
  Unload();
  Load();
  caller_ = &caller;
  purpose_ = purpose;
  FillMask(record);
  // A single item always counts 1.
  Lagerbestand.SetEnabled(!record.SingleItem());
  MinSollChanged = false;
  ForceNewPosition = false;
  RewriteExisting = false;
}

void LGArtikelbearbeiten::OpenForEditing(StockCaller& caller, const StockRecord& record) {
  Open(caller, record, Purpose::Edit);
  SetStatus(Concat("Status des Artikels: ", record[kStockStatus]));
  Changed = false;
  Show();
  (Lagerbestand.Enabled() ? Lagerbestand : MindestMenge).SetFocus();
}

void LGArtikelbearbeiten::OpenForReceipt(StockCaller& caller, const StockRecord& record, Position position) {
  Open(caller, record, Purpose::Receipt);
  ForceNewPosition = position == Position::New;
  Changed = true;
  Show();
  LagerOrt.SetFocus();
}

void LGArtikelbearbeiten::CheckQuantity() {
  if (IsNumeric(Lagerbestand.Text())) return;
  context_.platform.Tell("Bitte eine gültige Zahl angeben!"_t);
  Lagerbestand.SetFocus();
}

void LGArtikelbearbeiten::NoteMinimumChange() {
  Changed = true;
  if (Einzel_Check.Checked()) MinSollChanged = true;
}

void LGArtikelbearbeiten::ComputeGross() {
  const auto factor = VatFactor(context_.settings, MWST2_Check.Checked());
  if (const auto gross = GrossPriceText(VK.Text(), factor)) Brutto.SetText(*gross);
}

void LGArtikelbearbeiten::ComputeNet() {
  const auto factor = VatFactor(context_.settings, MWST2_Check.Checked());
  if (const auto net = NetPriceText(Brutto.Text(), factor)) VK.SetText(*net);
}

bool LGArtikelbearbeiten::LeavingAllowed() {
  if (!Changed) return true;
  switch (context_.platform.Box("Lagerartikel wurde geändert. Ohne speichern beenden?"_t, "Ohne speichern beenden",
                                Buttons::YesNoCancel)) {
    case Answer::Yes:
      Changed = false;
      return true;
    case Answer::No:
      return Save();
    default:
      return false;
  }
}

void LGArtikelbearbeiten::End() {
  if (!LeavingAllowed()) return;
  Unload();
  if (caller_) caller_->CloseSearch();
}

void LGArtikelbearbeiten::BackToSearch() {
  if (!LeavingAllowed()) return;
  Unload();
  if (caller_) {
    caller_->ShowSearchAgain();
  } else if (Screen* search = context_.desktop.Find("LGArtikelSuche")) {
    search->Show();
  }
}

std::string LGArtikelbearbeiten::Dated(std::string_view phrase) const {
  return Concat(phrase, context_.platform.TodayText());
}

std::string LGArtikelbearbeiten::NameAndNumber() const {
  return Concat(Bezeichnung.Text(), " / LagerNr. ", LagerNr.Text(), " gespeichert!");
}

bool LGArtikelbearbeiten::Save() {
  aktEK.SetText(PriceAsShown(aktEK.Text()));
  SetStatus("speichern... Bitte warten!");
  const bool receipt = purpose_ == Purpose::Receipt;
  if (ForceNewPosition || (receipt && !LagerNr.Text().starts_with('#'))) {
    if (!Append()) return false;
  } else if (receipt) {
    RewriteExisting = true;
  }
  // Kept: a record just appended is written a second time, and the table gains its blank line.
  const bool known = purpose_ != Purpose::None || RewriteExisting;
  if (known && !Rewrite(receipt ? kStatusReceipt : kStatusChange)) return false;
  RewriteExisting = false;
  Changed = false;
  if (MinSollChanged) SpreadMinimum();
  centre_.CountStockItems();
  return true;
}

bool LGArtikelbearbeiten::Append() {
  const std::string oldNumber = LagerNr.Text();
  LagerNr.SetText(NextStockNumber(context_.store.ReadTableText(table::kStock)));
  StockRecord record = MaskRecord();
  record[kStockStatus] = Dated(kStatusReceipt);
  if (!context_.store.AppendRow(table::kStock, record.Row())) {
    LagerNr.SetText(oldNumber);
    SetStatus({});
    return false;
  }
  SetStatus(NameAndNumber());
  ForceNewPosition = false;
  RewriteExisting = false;
  Changed = false;
  return true;
}

bool LGArtikelbearbeiten::Rewrite(std::string_view phrase) {
  StockRecord record = MaskRecord();
  record[kStockStatus] = Dated(phrase);
  if (!ReplaceStockRecord(context_.store, record)) {
    SetStatus({});
    return false;
  }
  SetStatus(Concat("Änderungen des LagerArtikels "_t, NameAndNumber()));
  return true;
}

// Kept: the status just written gives way to that of a change, on the saved piece as on all the others.
void LGArtikelbearbeiten::SpreadMinimum() {
  if (!RewriteMinimum(context_.store, ArticleNumber(), MindestMenge.Text(), SollMenge.Text(), Dated(kStatusChange)))
    return;
  SetStatus("Änderungen der Mindest- und Sollmenge wurde bei allen zugehörigen Lagerartikeln gespeichert!"_t);
  MinSollChanged = false;
}

}  // namespace kontorwerk
