// What begins a document: the cleared form, and the commands that go on to the next document.
#include <initializer_list>

#include "documents/ABRGForm.h"
#include "documents/DocumentNumbers.h"
#include "store/Dates.h"

namespace kontorwerk {
namespace {

constexpr std::string_view kNewDocumentTitle = "Neuen Beleg erstellen und aktuelle Daten löschen?"_t;
constexpr std::string_view kNewCustomer =
    "Wollen Sie wirklich einen Beleg an einen anderen Kunden erstellen?\r\n"
    "Sollte der aktuelle Beleg noch nicht gedruckt worden sein, gehen 'alle' Daten des aktuellen Beleges verloren!";
constexpr std::string_view kNextDocument =
    "Wollen Sie wirklich einen neuen Beleg an diesen Kunden erstellen?\r\n"
    "Sollte der aktuelle Beleg noch nicht gedruckt worden sein, werden 'alle' Artikeldaten des aktuellen Beleges "
    "verlöscht!"_t;
constexpr std::string_view kOtherCustomerTitle = "Daten des Beleges an anderen Kunden übernehmen?"_t;
constexpr std::string_view kOtherCustomer =
    "Wollen Sie dieses Angebot an einen anderen Kunden schicken?\r\nÄnderungen des aktuellen Beleg gehen verloren!"_t;

}  // namespace

std::array<ABRGForm::Prompt, 6> ABRGForm::Prompts() {
  return {{{&Anrede, "Anrede"},
           {&KDName, "Vorname, Name"},
           {&Ansprechpartner, "Ansprechpartner"},
           {&Straße, "Straße"_t},
           {&PLZ, "PLZ"},
           {&Wohnort, "Wohnort"}}};
}

// Today, or the last day of the year before as long as the tables have not been turned to the new year.
std::string ABRGForm::StartingDate() const {
  const Date today = context_.platform.Today();
  if (context_.settings.DocumentYearOffset == "0") return DateText(today);
  return DateText({today.year - 1, 12, 31});
}

void ABRGForm::ShowPrompts() {
  KDNr.Clear();
  for (const Prompt& prompt : Prompts()) prompt.field->SetText(prompt.text);
}

void ABRGForm::ClearDocumentForm() { ClearDocument(Address::Prompts); }

void ABRGForm::ClearDocument(Address address) {
  const Settings& settings = context_.settings;
  if (address == Address::Prompts) ShowPrompts();
  Datum.SetText(StartingDate());
  ABRGNR.SetText(PendingNumber(Datum.Text()));
  LieferscheinNr.SetCaption({});
  SetSelector(kSelectorEntriesOfNewScreen, kSelectorOpen);
  Label28.SetCaption(RateLabel(settings.MWSTSatz));
  Label29.SetCaption(RateLabel(settings.MWSTSatz2));
  for (TextBox* amount : {&Gesamt, &MWST, &MWST2, &Betrag}) amount->Clear();
  Zahlungsweise.SetText(settings.RGZahlungsweise);
  Text1.SetText(settings.RGText1);
  Text2.SetText(settings.RGText2);
  ShowStatus("Status");
  StatusBar1.SetPanel(kReasonPanel, {});
  controlCentre_.ReadConfig();
}

// The answers and lists of the document before do not reach the next one. A question about it that is still open ends.
void ABRGForm::ForgetDocument() {
  choice_.Unload();
  ErsteNummerOffen = false;
  AngebotGeladen = false;
  AngebotIstEntwurf = false;
  ClosedDocumentKeys.clear();
  PendingStockList.clear();
  SetNumberEntry(false);
}

void ABRGForm::StartNewCustomer() {
  if (!context_.platform.Ask(kNewCustomer, kNewDocumentTitle)) return;
  ForgetDocument();
  ClearPositions();
  SetPriceBase(PriceBase::Net);
  UnsereZeichen.Clear();
  IhreZeichen.Clear();
  ClearDocument(Address::Prompts);
  SetLocked(false);
  Command5.Disable();
  OpenCustomerSearch();
}

void ABRGForm::StartNextDocument() {
  if (!context_.platform.Ask(kNextDocument, kNewDocumentTitle)) return;
  ForgetDocument();
  ClearPositions();
  SetPriceBase(PriceBase::Net);
  ClearDocument(Address::Keep);
  SetLocked(false);
  Command5.Disable();
  BringToFront();
  Rows.LGNr[0].SetFocus();
}

void ABRGForm::SendToOtherCustomer() {
  if (!context_.platform.Ask(kOtherCustomer, kOtherCustomerTitle)) return;
  const std::string payment = Zahlungsweise.Text();
  const std::string text1 = Text1.Text();
  const std::string text2 = Text2.Text();
  const int place = ComboABRG.ListIndex() <= kSelectorCreditNote ? ComboABRG.ListIndex() : kSelectorOpen;
  ForgetDocument();
  SetSelector(kSelectorEntriesOfNewScreen, place);
  Zahlungsweise.SetText(payment);
  Text1.SetText(text1);
  Text2.SetText(text2);
  for (TextBox* field : {&KDNr, &Anrede, &KDName, &Ansprechpartner, &Straße, &PLZ, &Wohnort}) field->Clear();
  ABRGNR.SetText(PendingNumber(Datum.Text()));
  LieferscheinNr.SetCaption({});
  SetLocked(false);
  Command5.Disable();
  OpenCustomerSearch();
}

void ABRGForm::ReopenDocument() {
  if (IsQuotation()) AngebotGeladen = true;
  SetLocked(false);
}

void ABRGForm::OpenCustomerSearch() {
  if (actions_.openCustomerSearch) actions_.openCustomerSearch();
}

}  // namespace kontorwerk
