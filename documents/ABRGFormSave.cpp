// "Speichern + Drucken": the questions, then the records, then the paper. Nothing is printed that could not be stored.
#include "documents/ABRGForm.h"
#include "documents/DocumentNumbers.h"
#include "documents/PrintForm.h"
#include "documents/PrintRun.h"
#include "platform/WordXChange.h"
#include "store/RecordLine.h"

namespace kontorwerk {
namespace {

constexpr std::string_view kNoCustomerTitle = "Kundenadresse aus Datenbank suchen und übernehmen?"_t;
constexpr std::string_view kNoCustomer =
    "Die Kundenadresse wurde manuell eingetragen!\r\n"
    "Dieser Beleg kann aufgrund der fehlenden Kundennummer später nicht exakt zugeordnet werden.\r\n"
    "Möchten Sie die Kundenadresse aus der Kundendatenbank suchen / anlegen und übernehmen?\r\n"
    "(Belegdaten bleiben erhalten)"_t;
constexpr std::string_view kChoiceCaption = "Lieferscheine / Rechnungen drucken?";
constexpr std::string_view kWithoutPrices = "Lieferschein ohne Preise drucken.";
constexpr std::string_view kTotalsTitle = "Gesamtbetrag im Angebot ausdrucken?";
constexpr std::string_view kTotals =
    "Soll der Gesamtbetrag des Angebotes ausgedruckt werden?\r\n"
    "(Bei 'Nein' werden keine Zwischensummen und kein Gesamtbetrag im Angebot aufgeführt)"_t;
constexpr std::string_view kFirstInvoiceNumber =
    "Es wurde keine Rechnungendatenbank gefunden!\r\n"
    "Bitte geben sie eine aktuelle Rechnungsnummer für diese Rechnung an!\r\nBsp. 0150/2007"_t;
constexpr std::string_view kFirstQuotationNumber =
    "Es wurde keine Angebotedatenbank gefunden!\r\n"
    "Bitte geben sie eine aktuelle Rechnungsnummer für diesen Angebotssentwurf an!\r\nBsp. 0150/2007"_t;
constexpr std::string_view kCopyTitle = "Kopie drucken?";
constexpr std::string_view kCopy =
    "Das Angebot existiert bereits in der Datenbank!\r\n"
    "Wollten Sie nur eine Kopie / Änderungen drucken ?\r\n"
    "Bei 'Nein' wird eine neue Angebotsnummer vergeben!"_t;

// Answers of the choice between delivery note and invoice.
constexpr std::string_view kBoth = "1";
constexpr std::string_view kInvoiceOnly = "2";
constexpr std::string_view kDeliveryNoteOnly = "3";

}  // namespace

// The command

void ABRGForm::SaveAndPrint() {
  if (saving_) {
    choice_.BringToFront();
    return;
  }
  saving_ = true;
  choice_.ClearResult();
  StatusBar1.SetPanel(kReasonPanel, {});
  if (AskForCustomer() == Step::Done && !RefusedForNumber()) {
    Berechnen();
    if (AskWhatToPrint() == Step::Done) {
      BelegDrucken();
      BringToFront();
    }
  }
  saving_ = false;
}

ABRGForm::Step ABRGForm::AskForCustomer() {
  if (!KDNr.Text().empty() || !context_.platform.Ask(kNoCustomer, kNoCustomerTitle)) return Step::Done;
  for (TextBox* field : {&KDName, &Ansprechpartner, &Straße, &PLZ, &Wohnort}) field->Clear();
  OpenCustomerSearch();
  return Step::Ended;
}

bool ABRGForm::RefusedForNumber() {
  if (!RefuseNumberFormat()) return false;
  ABRGNR.SetFocus();
  return true;
}

ABRGForm::Step ABRGForm::AskWhatToPrint() {
  const int place = ComboABRG.ListIndex();
  if (place != kSelectorOpen && place != kSelectorDeliveryNote) return Step::Done;
  choice_.Open(kChoiceCaption,
               {"Lieferschein und Rechnung drucken", "nur Rechnung drucken", "nur Lieferschein drucken!"});
  choice_.OfferTick(kWithoutPrices);
  if (place == kSelectorDeliveryNote) {
    choice_.Combo.SetListIndex(2);
    choice_.Combo.Disable();
  }
  const std::string result = choice_.WaitForResult();
  if (result.empty()) return Step::Ended;
  if (result != LFRGForm::kCancelled) return Step::Done;
  ShowStatus("Abbruch durch den Benutzer");
  return Step::Ended;
}

void ABRGForm::BelegDrucken() {
  printTotals_ = IsQuotation() && context_.platform.Ask(kTotals, kTotalsTitle);
  context_.platform.WordProcessor().Reset();
  const auto choice = context_.platform.ChoosePrinter("Drucken");
  if (!choice) {
    choice_.Unload();
    return;
  }
  printer_ = *choice;
  startKind_ = ComboABRG.ListIndex();
  if (SaveByKind() == Step::Done && PrintByKind() == Step::Done) BelegAbschluss();
}

// Records

// The answer and the selector, which may have moved on meanwhile, tell which kinds are saved.
ABRGForm::Step ABRGForm::SaveByKind() {
  const auto isNoteOrInvoice = [this] {
    const int place = ComboABRG.ListIndex();
    return place == kSelectorOpen || place == kSelectorDeliveryNote || place == kSelectorInvoice;
  };
  const std::string answer = choice_.Result();
  if (isNoteOrInvoice() && (answer == kBoth || answer == kDeliveryNoteOnly || ComboABRG.Text() == "Lieferschein"))
    if (SaveDeliveryNote() == Step::Ended) return Step::Ended;
  if (isNoteOrInvoice() && (answer == kBoth || answer == kInvoiceOnly || ComboABRG.Text() == "Rechnung"))
    if (SaveInvoice() == Step::Ended) return Step::Ended;
  if (IsQuotation()) return SaveQuotation();
  if (ComboABRG.ListIndex() == kSelectorCreditNote) return SaveCreditNote();
  return Step::Done;
}

ABRGForm::Step ABRGForm::PutOnTop(DocumentKind kind, std::string_view tableText, std::string_view number) {
  if (PrependDocument(context_.store, kind, tableText, DocumentLine(Record(kind, number), kind))) return Step::Done;
  ReportFailure(kind);
  return Step::Ended;
}

// Kept: a number that no row of the table has is reported as saved all the same, and the document is not stored.
ABRGForm::Step ABRGForm::ReplaceSaved(DocumentKind kind, std::string_view number) {
  const std::string line = DocumentLine(Record(kind, number), kind);
  if (context_.store.ReplaceRowByNumber(NamesOf(kind).table, number, line)) return Step::Done;
  ReportFailure(kind);
  return Step::Ended;
}

ABRGForm::Step ABRGForm::SaveDeliveryNote() {
  constexpr DocumentKind kKind = DocumentKind::DeliveryNote;
  if (ComboABRG.Text() == NamesOf(kKind).word) {
    if (ReplaceSaved(kKind, LieferscheinNr.Caption()) == Step::Ended) return Step::Ended;
    ShowStatus(Concat("Änderungen des Lieferscheins "_t, ABRGNR.Text(), " gespeichert!"));
    choice_.SetResult(kDeliveryNoteOnly);
    return Step::Done;
  }
  const std::string table = context_.store.ReadTableText(NamesOf(kKind).table);
  const std::string number = NextNumber(kKind, FirstRow(table), Datum.Text()).value_or(std::string());
  if (PutOnTop(kKind, table, number) == Step::Ended) return Step::Ended;
  ShowStatus(Concat("Lieferschein ", number, " in der Datenbank gespeichert!"));
  LieferscheinNr.SetCaption(number);
  if (choice_.Result() == kDeliveryNoteOnly) ABRGNR.SetText(DeliveryNoteOnlyNumber(Datum.Text()));
  SetSelector(kSelectorTexts.size(), kSelectorDeliveryNote);
  return Step::Done;
}

ABRGForm::Step ABRGForm::SaveInvoice() {
  constexpr DocumentKind kKind = DocumentKind::Invoice;
  const ReadResult table = context_.store.ReadTable(NamesOf(kKind).table);
  // A table that cannot be read now is not an empty one: the first number must not be asked for.
  if (table.status == ReadStatus::Failed) {
    ReportFailure(kKind);
    return Step::Ended;
  }
  if (IsPendingNumber(ABRGNR.Text())) {
    const auto number = NextNumber(kKind, FirstRow(table.text), Datum.Text());
    if (!number) {
      AskForFirstNumber(kFirstInvoiceNumber);
      return Step::Ended;
    }
    if (PutOnTop(kKind, table.text, *number) == Step::Ended) return Step::Ended;
    ABRGNR.SetText(*number);
    ShowStatus(Concat("Rechnung ", *number, " in der Datenbank gespeichert!"));
  } else if (NumberIsEntered()) {
    if (SaveFirstInvoice() == Step::Ended) return Step::Ended;
  } else {
    if (ReplaceSaved(kKind, ABRGNR.Text()) == Step::Ended) return Step::Ended;
    ShowStatus(Concat("Änderungen der Rechnung "_t, ABRGNR.Text(), " gespeichert!"));
  }
  SetSelector(kSelectorTexts.size(), kSelectorInvoice);
  return Step::Done;
}

// Kept: the table is made anew with this one line; the number was asked for because the table held none.
ABRGForm::Step ABRGForm::SaveFirstInvoice() {
  constexpr DocumentKind kKind = DocumentKind::Invoice;
  const std::string line = DocumentLine(Record(kKind, ABRGNR.Text()), kKind);
  if (!context_.store.WriteTable(NamesOf(kKind).table, Concat(line, kLineEnd))) {
    ReportFailure(kKind);
    return Step::Ended;
  }
  ShowStatus(Concat("Rechnung ", ABRGNR.Text(), " in der Datenbank gespeichert!"));
  SetNumberEntry(false);
  return Step::Done;
}

void ABRGForm::AskForFirstNumber(std::string_view message) {
  context_.platform.Tell(message);
  SetNumberEntry(true);
  ABRGNR.SetText(NumberToType(Datum.Text()));
  ABRGNR.SetFocus();
}

ABRGForm::Step ABRGForm::SaveQuotation() {
  constexpr DocumentKind kKind = DocumentKind::Quotation;
  if (ErsteNummerOffen) {
    const std::string marker = TempRow(ABRGNR.Text(), context_.platform.TodayText(), KDName.Text());
    (void)context_.store.PrependRow(NamesOf(kKind).table, marker);
    SetNumberEntry(false);
    ErsteNummerOffen = false;
  }
  const std::string table = context_.store.ReadTableText(NamesOf(kKind).table);
  bool exists = false;
  bool replace = false;
  ForEachRow(table, [&](std::string_view row) {
    if (RecordField(row, 2) != ABRGNR.Text()) return;
    const MarkerRow marker = MarkerOf(row);
    if (marker == MarkerRow::Temp || marker == MarkerRow::Draft) {
      replace = true;
      AngebotIstEntwurf = true;
    }
    (AngebotIstEntwurf ? replace : exists) = true;
  });
  if (!exists && !replace) return SaveNewQuotation(table);
  if (exists && !(AngebotGeladen && AngebotIstEntwurf) && AskForCopy() == Step::Ended) return Step::Ended;
  return ReplaceSaved(kKind, ABRGNR.Text());
}

ABRGForm::Step ABRGForm::SaveNewQuotation(std::string_view tableText) {
  constexpr DocumentKind kKind = DocumentKind::Quotation;
  const std::string number = NextNumber(kKind, FirstRow(tableText), Datum.Text()).value_or(std::string());
  if (AsksForFirstNumber(number)) {
    AskForFirstNumber(kFirstQuotationNumber);
    ErsteNummerOffen = true;
    return Step::Ended;
  }
  if (PutOnTop(kKind, tableText, number) == Step::Ended) return Step::Ended;
  ABRGNR.SetText(number);
  return Step::Done;
}

// Kept: with a new number the row that has just gone on top is rewritten with itself by the caller.
ABRGForm::Step ABRGForm::AskForCopy() {
  switch (context_.platform.Box(kCopy, kCopyTitle, Buttons::YesNoCancel)) {
    case Answer::Yes:
      return Step::Done;
    case Answer::No:
      break;
    default:
      return Step::Ended;
  }
  constexpr DocumentKind kKind = DocumentKind::Quotation;
  const std::string table = context_.store.ReadTableText(NamesOf(kKind).table);
  const std::string number = NextNumber(kKind, FirstRow(table), Datum.Text()).value_or(std::string());
  if (PutOnTop(kKind, table, number) == Step::Ended) return Step::Ended;
  ABRGNR.SetText(number);
  return Step::Done;
}

ABRGForm::Step ABRGForm::SaveCreditNote() {
  constexpr DocumentKind kKind = DocumentKind::CreditNote;
  if (!IsPendingNumber(ABRGNR.Text())) {
    if (ReplaceSaved(kKind, ABRGNR.Text()) == Step::Ended) return Step::Ended;
    ShowStatus(Concat("Änderungen der Gutschrift "_t, ABRGNR.Text(), " gespeichert!"));
    return Step::Done;
  }
  const std::string table = context_.store.ReadTableText(NamesOf(kKind).table);
  const std::string number = NextNumber(kKind, FirstRow(table), Datum.Text()).value_or(std::string());
  if (PutOnTop(kKind, table, number) == Step::Ended) return Step::Ended;
  ABRGNR.SetText(number);
  ShowStatus(Concat("Gutschrift ", number, " in der Datenbank gespeichert!"));
  return Step::Done;
}

std::string ABRGForm::NumberOf(DocumentKind kind) const {
  return kind == DocumentKind::DeliveryNote ? LieferscheinNr.Caption() : ABRGNR.Text();
}

DocumentRecord ABRGForm::Record(DocumentKind kind, std::string_view number) const {
  DocumentRecord record;
  record.number = number;
  record.Datum = Datum.Text();
  record.KDNr = KDNr.Text();
  record.KDName = KDName.Text();
  record.Ansprechpartner = Ansprechpartner.Text();
  record.Straße = Straße.Text();
  record.PLZ = PLZ.Text();
  record.Wohnort = Wohnort.Text();
  record.UnsereZeichen = UnsereZeichen.Text();
  record.IhreZeichen = IhreZeichen.Text();
  record.kindWord = kind == DocumentKind::Quotation ? ComboABRG.Text() : std::string(NamesOf(kind).word);
  record.BruttoButton = BruttoButton.Value();
  record.NettoButton = NettoButton.Value();
  record.rows = Rows.Rows();
  record.Gesamt = Gesamt.Text();
  record.MWST = MWST.Text();
  record.MWST2 = MWST2.Text();
  record.Betrag = Betrag.Text();
  record.Zahlungsweise = Zahlungsweise.Text();
  record.Text1 = Text1.Text();
  record.Text2 = Text2.Text();
  if (kind == DocumentKind::Invoice) record.LieferscheinNr = LieferscheinNr.Caption();
  record.Anrede = Anrede.Text();
  return record;
}

// Paper

PaperDocument ABRGForm::Paper(DocumentKind kind) const {
  PaperDocument paper;
  paper.kind = kind;
  paper.record = Record(kind, NumberOf(kind));
  paper.storedRows = StoredRowCount(paper.record.rows);
  paper.rateLabel1 = Label28.Caption();
  paper.rateLabel2 = Label29.Caption();
  if (kind == DocumentKind::DeliveryNote && choice_.Check1.Checked()) paper.withheld = Withheld::Prices;
  if (kind == DocumentKind::Quotation && !printTotals_) paper.withheld = Withheld::Totals;
  return paper;
}

bool ABRGForm::Prints(DocumentKind kind) const {
  const std::string& answer = choice_.Result();
  switch (kind) {
    case DocumentKind::DeliveryNote:
      return answer == kBoth || answer == kDeliveryNoteOnly || ComboABRG.Text() == NamesOf(kind).word;
    case DocumentKind::Invoice:
      return answer == kBoth || answer == kInvoiceOnly || ComboABRG.ListIndex() == kSelectorInvoice;
    case DocumentKind::Quotation:
      return IsQuotation();
    case DocumentKind::CreditNote:
      break;
  }
  return ComboABRG.ListIndex() == kSelectorCreditNote;
}

ABRGForm::Step ABRGForm::PrintByKind() {
  WordXChange& word = context_.platform.WordProcessor();
  for (const DocumentKind kind :
       {DocumentKind::DeliveryNote, DocumentKind::Invoice, DocumentKind::Quotation, DocumentKind::CreditNote}) {
    if (!Prints(kind)) continue;
    const auto showStatus = [this](std::string_view text) { ShowStatus(text); };
    if (PrintPaper(Paper(kind), printer_, word, context_.settings, showStatus)) continue;
    StatusBar1.SetPanel(kReasonPanel, word.ErrorText());
    ReportFailure(kind);
    return Step::Ended;
  }
  return Step::Done;
}

// Kept: after a delivery note or credit note the page stays open in the word processor until the next run.
void ABRGForm::ReportFailure(DocumentKind kind) {
  context_.platform.Tell(PrintFailureMessage(kind));
  ShowStatus(PrintFailureStatus(kind));
  if (kind != DocumentKind::Invoice && kind != DocumentKind::Quotation) return;
  context_.platform.WordProcessor().CloseDocument();
  context_.platform.WordProcessor().Reset();
}

void ABRGForm::BelegRTFDrucken() {
  const DocumentKind kind = KindAtSelector(ComboABRG.ListIndex()).value_or(DocumentKind::Invoice);
  const PaperDocument paper = Paper(kind);
  ShowStatus("Vorlage öffnen"_t);
  const std::vector<std::string> pages = FillForm(paper, context_.files, context_.settings);
  ShowStatus("Daten übernehmen"_t);
  if (!pages.empty()) BelegRTF.SetRtf(pages.front());
  const auto choice = context_.platform.ChoosePrinter("Drucken");
  if (!choice) {
    ShowStatus(FormNotPrinted(paper.record.number));
  } else if (PrintForm(paper, *choice, context_.platform.WordProcessor(), context_.settings)) {
    ShowStatus(FormPrinted(paper.record.number));
  } else {
    ReportFailure(kind);
  }
}

}  // namespace kontorwerk
