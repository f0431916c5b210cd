// The wiring of the screen, its life, and the checks of number, date and kind.
#include "documents/ABRGForm.h"

#include <algorithm>
#include <array>
#include <optional>

#include "documents/DocumentNumbers.h"
#include "store/Dates.h"

namespace kontorwerk {
namespace {

constexpr std::string_view kStarMeansNewPage =
    "Steht hinter der Position ein Stern *\r\nso bedeutet dies, dass eine neue Seite beginnt!";
constexpr std::string_view kNumberFormat =
    "Rechnungsnummer weist falsches Format auf! Bitte korrigieren!\r\n\r\nFormat-Beispiel :   0150/2007";
constexpr std::string_view kNoDate = "ungültiges Belegdatum erkannt!\r\nBitte Belegdatum korrigieren!"_t;
constexpr std::string_view kDateFormat = "Datum weist falsches Format auf!\r\n wie folgt ändern:\r\nBsp. 29.06.2007"_t;
constexpr std::string_view kOtherYearTitle = "Belegdatum dem aktuellen Datum anpassen?";
constexpr std::string_view kOtherYear =
    "Jahreszahl im Belegdatum stimmt nicht mit dem aktuellen Datum überein!\r\n"
    "Wenn Sie einen neuen Beleg erstellen, drücken Sie auf 'OK' und das Belegdatum wird angepasst!\r\n"
    "Möchten Sie eine Kopie eines älteren Beleges ausdrucken drücken Sie auf 'Abbrechen'"_t;

constexpr int kLengthOfDate = 10;
constexpr int kLengthOfYear = 4;

std::string YearNotTurned(std::string_view year) {
  return Concat(
      "Die Belegedatenbanken sind noch nicht auf das neue Jahr umgestellt worden!\r\nBelegdatum wird auf dem 31.12.",
      year, " gestellt.\r\nUm die Datenbanken umzustellen, starten Sie die Kontorwerk neu!");
}

}  // namespace

ABRGForm::ABRGForm(Context& context, ControlCentre& controlCentre, LFRGForm& choice)
    : Screen(context.desktop, "ABRGForm"),
      Rows(*this, context.settings),
      context_(context),
      controlCentre_(controlCentre),
      choice_(choice) {
  WireHead();
  WireRows();
  WireCommands();
}

void ABRGForm::WireHead() {
  for (const Prompt& prompt : Prompts())
    prompt.field->OnEnter = [prompt] {
      if (prompt.field->Text() == prompt.text) prompt.field->SelectAll();
    };
  ABRGNR.OnLeave = [this] { CheckNumberLeft(); };
  Datum.OnLeave = [this] { CheckDateLeft(); };
  ComboABRG.OnChange = [this] { OnKindChanged(); };
  NettoButton.OnClick = [this] { ChangePriceBase(PriceBase::Net); };
  BruttoButton.OnClick = [this] { ChangePriceBase(PriceBase::Gross); };
}

void ABRGForm::WireRows() {
  RowHandlers handlers;
  handlers.edited = [this] { Berechnen(); };
  handlers.lookUpStockNumber = [this](int row) {
    LookUp(Rows.LGNr[row], &LookupByStockNumber, row, kLookupRunning, kStockItemNotFound);
  };
  handlers.lookUpArticleNumber = [this](int row) {
    LookUp(Rows.ArtNr[row], &LookupByArticleNumber, row, {}, kArticleNotFound);
  };
  handlers.leftEan = [this](int row, std::string_view text) {
    ShowStatus({});
    ReportLookup(LookupByEAN(*this, context_.store, row, text) == LookupResult::Filled, kEanNotFound);
  };
  handlers.searchStock = [this] {
    if (actions_.openStockSearch) actions_.openStockSearch();
  };
  handlers.searchArticle = [this] {
    if (actions_.openArticleSearch) actions_.openArticleSearch();
  };
  handlers.explainLabel = [this] { context_.platform.Tell(kStarMeansNewPage); };
  handlers.wentPastEnd = [this] { Command10.SetFocus(); };
  Rows.SetHandlers(std::move(handlers));
}

void ABRGForm::WireCommands() {
  Command1.OnClick = [this] { SaveAndPrint(); };
  Command2.OnClick = [this] { AskToClearPositions(); };
  Command3.OnClick = [this] { ReopenDocument(); };
  Command4.OnClick = [this] { AskToLeave(); };
  Command5.OnClick = [this] { SendToOtherCustomer(); };
  Command7.OnClick = [this] { StartNewCustomer(); };
  Command8.OnClick = [this] { StartNextDocument(); };
  Command10.OnClick = [this] { Rows.AddPage(ABRGFormRows::NewPage::ByUser); };
  Command13.OnClick = [this] { Rows.InsertBehindCurrent(); };
  Command14.OnClick = [this] {
    Rows.DeleteCurrent();
    Berechnen();
  };
}

// Life

void ABRGForm::OnLoad() {
  locked_ = false;
  Rows.Prepare();
  ForgetDocument();
  SetPriceBase(PriceBase::Net);
  SetNumberEntry(false);
  ClearDocumentForm();
}

void ABRGForm::OnUnload() {
  choice_.Unload();
  context_.settings.PositionRowCount = kRowsPerPage;
}

void ABRGForm::AskToLeave() {
  const bool isPrinted = locked_;
  if (isPrinted || context_.platform.Ask("Wollen Sie ohne Speichern beenden?", "Beenden ohne Speichern")) Unload();
}

void ABRGForm::SetLocked(bool locked) {
  locked_ = locked;
  for (Control* control : std::initializer_list<Control*>{
           &Anrede, &KDName, &Ansprechpartner, &Straße, &PLZ, &Wohnort, &Datum, &UnsereZeichen, &IhreZeichen,
           &ComboABRG, &BruttoButton, &NettoButton, &Zahlungsweise, &Text1, &Text2, &Command10, &Command13, &Command14})
    control->SetEnabled(!locked);
  Rows.SetEnabled(!locked);
  Command3.SetEnabled(locked);
}

void ABRGForm::TakePartner(const PartnerAddress& address, std::string_view ansprechpartner, TakeOverRoute route) {
  KDNr.SetText(address.KDNr);
  Anrede.SetText(address.Anrede);
  KDName.SetText(address.KDName);
  Ansprechpartner.SetText(ansprechpartner);
  Straße.SetText(address.Straße);
  PLZ.SetText(address.PLZ);
  Wohnort.SetText(address.Wohnort);
  Show();
  if (route == TakeOverRoute::ContactChoice) {
    UnsereZeichen.SetFocus();
  } else {
    Rows.LGNr[0].SetFocus();
  }
}

// Number, date and kind

// True, with a message, for a number of another length than nine characters.
bool ABRGForm::RefuseNumberFormat() {
  if (HasNumberFormat(ABRGNR.Text())) return false;
  context_.platform.Tell(kNumberFormat);
  return true;
}

// A number that cannot be typed over does not hold the user back.
void ABRGForm::CheckNumberLeft() {
  if (RefuseNumberFormat() && NumberIsEntered()) ABRGNR.SetFocus();
}

void ABRGForm::CheckDateLeft() {
  if (!IsDate(Datum.Text())) {
    context_.platform.Tell(kNoDate);
    Datum.SetFocus();
  } else if (Len(Datum.Text()) != kLengthOfDate) {
    context_.platform.Tell(kDateFormat);
    Datum.SetFocus();
  } else {
    CheckYearOfDate();
  }
}

void ABRGForm::CheckYearOfDate() {
  const std::string year(Right(Datum.Text(), kLengthOfYear));
  const std::string expected(Right(StartingDate(), kLengthOfYear));
  const bool yearNotTurned = context_.settings.DocumentYearOffset != "0";
  if (year == expected) {
    if (!yearNotTurned) ABRGNR.SetText(WithYearOf(ABRGNR.Text(), Datum.Text()));
    return;
  }
  if (yearNotTurned) {
    context_.platform.Tell(YearNotTurned(expected));
    Datum.SetText(StartingDate());
    Datum.SetFocus();
  } else if (context_.platform.Box(kOtherYear, kOtherYearTitle, Buttons::OkCancel) == Answer::Ok) {
    Datum.SetText(Concat(Left(Datum.Text(), kLengthOfDate - kLengthOfYear), expected));
    Datum.SetFocus();
  }
}

void ABRGForm::OnKindChanged() {
  const Settings& s = context_.settings;
  const auto showTexts = [this](std::string_view payment, std::string_view text1, std::string_view text2) {
    Zahlungsweise.SetText(payment);
    Text1.SetText(text1);
    Text2.SetText(text2);
  };
  switch (ComboABRG.ListIndex()) {
    case kSelectorOpen:
      showTexts(s.RGZahlungsweise, s.RGText1, s.RGText2);
      break;
    case kSelectorQuotation:
      showTexts(s.ABZahlungsweise, s.ABText1, s.ABText2);
      break;
    case kSelectorCreditNote:
      showTexts(s.GSZahlungsweise, s.GSText1, s.GSText2);
      break;
    case ComboBox::kNone:
      return;
    default:
      break;
  }
  // Credit notes have no drafts.
  if (ComboABRG.ListIndex() <= kSelectorCreditNote) Datei.SetVisible(ComboABRG.ListIndex() != kSelectorCreditNote);
  for (Control* control : std::initializer_list<Control*>{&BruttoButton, &NettoButton, &Gesamt, &MWST, &MWST2, &Betrag,
                                                          &Zahlungsweise, &Text1, &Text2, &Label13})
    control->Show();
  Berechnen();
}

void ABRGForm::SetSelector(std::size_t entries, int place) {
  std::vector<std::string> texts(kSelectorTexts.begin(), kSelectorTexts.begin() + static_cast<long>(entries));
  ComboABRG.SetItems(std::move(texts));
  ComboABRG.SetListIndex(place);
}

}  // namespace kontorwerk
