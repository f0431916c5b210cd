// Articles put into rows, and the amounts that follow from the rows.
#include "documents/ABRGForm.h"

namespace kontorwerk {
namespace {

constexpr std::string_view kClearTitle = "Artikelfelder löschen?"_t;
constexpr std::string_view kClearQuestion = "Wollen Sie wirklich alle Artikelfelder löschen?"_t;

}  // namespace

// Rows

void ABRGForm::FocusQuantity(int row) {
  if (Visible()) BringToFront();
  Rows.S[row].SetFocus();
}

// A single item is complete with its quantity and price, and nobody leaves its quantity.
void ABRGForm::FocusNextFreeRow(int row) {
  Berechnen();
  if (Visible()) BringToFront();
  Rows.LGNr[Rows.NextRowWithoutDescription(row)].SetFocus();
}

void ABRGForm::ClearPositions() {
  Rows.Clear();
  Rows.ScrollToTop();
}

void ABRGForm::AskToClearPositions() {
  if (!context_.platform.Ask(kClearQuestion, kClearTitle)) return;
  ClearPositions();
  Berechnen();
  Rows.LGNr[0].SetFocus();
  Rows.ScrollToTop();
}

// Lookups

void ABRGForm::LookUp(TextBox& number, LookupResult (*lookup)(PositionReceiver&, RecordStore&, int, std::string_view),
                      int row, std::string_view running, std::string_view failure) {
  ShowStatus({});
  if (!running.empty()) ShowStatus(running);
  const bool found = lookup(*this, context_.store, row, std::string(number.Text())) == LookupResult::Filled;
  if (!found) number.SetFocus();
  ReportLookup(found, failure);
}

void ABRGForm::ReportLookup(bool found, std::string_view failure) {
  if (found) Berechnen();
  ShowStatus(found ? std::string_view("Status") : failure);
  context_.platform.PlaySound(Concat(context_.platform.ProgramFolder(), found ? "OK.wav" : "Fehler.wav"));
}

// Amounts

void ABRGForm::Berechnen() {
  std::vector<PositionRow> rows = Rows.Rows();
  const DocumentTotals totals =
      kontorwerk::Berechnen(rows, BruttoButton.Value() ? PriceBase::Gross : PriceBase::Net, context_.settings);
  Rows.SetRows(rows);
  Gesamt.SetText(totals.Gesamt);
  MWST.SetText(totals.MWST);
  MWST2.SetText(totals.MWST2);
  Betrag.SetText(totals.Betrag);
}

void ABRGForm::SetPriceBase(PriceBase base) {
  isGross_ = base == PriceBase::Gross;
  (isGross_ ? BruttoButton : NettoButton).SetValue(true);
}

// The button that was clicked is on already; the rows still hold prices of the old kind.
void ABRGForm::ChangePriceBase(PriceBase wanted) {
  const PriceBase old = isGross_ ? PriceBase::Gross : PriceBase::Net;
  if (wanted != old) {
    std::vector<PositionRow> rows = Rows.Rows();
    const Answer answer =
        HasPrices(rows) ? context_.platform.Box(ConversionQuestion(wanted), kConversionTitle, Buttons::YesNoCancel)
                        : Answer::No;
    if (answer == Answer::Cancel) {
      SetPriceBase(old);
      return;
    }
    if (answer == Answer::Yes) {
      ConvertPrices(rows, wanted, context_.settings);
      Rows.SetRows(rows);
    }
    SetPriceBase(wanted);
  }
  Berechnen();
}

}  // namespace kontorwerk
