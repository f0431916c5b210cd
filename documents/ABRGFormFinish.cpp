// What follows a document that was saved and printed without a failure: goods leave the stock, a draft of the same
// number may go, the screen is locked, and the list of open documents is kept in step. The tables are written one by
// one.
#include "documents/ABRGForm.h"
#include "documents/Drafts.h"
#include "documents/StockReduction.h"

namespace kontorwerk {

void ABRGForm::BelegAbschluss() {
  const bool goodsMoved = TakeGoodsOut();
  OfferDraftDeletion();
  choice_.Unload();
  AngebotGeladen = false;
  AngebotIstEntwurf = false;
  SetLocked(true);
  Command5.Enable();
  EnterOpenDocument();
  if (goodsMoved) controlCentre_.CountStockItems();
  controlCentre_.OpenDocumentReminder();
}

// True if the table of the stock was touched.
bool ABRGForm::TakeGoodsOut() {
  const std::string today = context_.platform.TodayText();
  const bool isNew = MovesGoods(ComboABRG.ListIndex(), startKind_);
  if (isNew) (void)TakeOutOfStock(context_.store, Rows.Rows(), today);
  if (ComboABRG.ListIndex() != kSelectorInvoice || PendingStockList.empty()) return isNew;
  (void)TakePendingOutOfStock(context_.store, PendingStockList, today);
  PendingStockList.clear();
  return true;
}

void ABRGForm::OfferDraftDeletion() {
  // Kept: a credit note looks for the draft of a quotation; it has none of its own.
  const int place = ComboABRG.ListIndex() == kSelectorCreditNote ? kSelectorQuotation : ComboABRG.ListIndex();
  const std::string key = DraftKey(place, ABRGNR.Text());
  const std::string drafts = context_.store.ReadTableText(table::kDrafts);
  for (const std::string_view line : DraftLinesOf(drafts, key)) {
    if (!context_.platform.Ask(LeftoverDraftQuestion(line), kDeleteDraftTitle)) continue;
    const int left = DeleteDraft(context_.store, key);
    if (actions_.showDraftCount) actions_.showDraftCount(left);
    ShowStatus(Concat("Entwurf ", key, " gelöscht!"_t));
    return;
  }
}

void ABRGForm::EnterOpenDocument() {
  RecordStore& store = context_.store;
  Platform& platform = context_.platform;
  switch (ComboABRG.ListIndex()) {
    case kSelectorQuotation:
      EnterQuotation(store, OpenRecord(DocumentKind::Quotation), [&] {
        return platform.Ask(TakeInQuotationQuestion(ABRGNR.Text(), KDName.Text()), kTakeInQuotationTitle);
      });
      break;
    case kSelectorInvoice:
      EnterInvoice(store, OpenRecord(DocumentKind::Invoice), LieferscheinNr.Caption(), ClosedDocumentKeys,
                   [&] { return platform.Ask(NewAmountQuestion(), kNewAmountTitle); });
      break;
    case kSelectorDeliveryNote:
      EnterDeliveryNote(store, OpenRecord(DocumentKind::DeliveryNote));
      break;
    case kSelectorCreditNote:
      EnterCreditNote(store, OpenRecord(DocumentKind::CreditNote));
      break;
    default:
      break;
  }
}

OpenDocumentRecord ABRGForm::OpenRecord(DocumentKind kind) const {
  const DocumentRecord document = Record(kind, NumberOf(kind));
  OpenDocumentRecord open;
  open.Belegart = NamesOf(kind).prefix;
  open.number = document.number;
  open.Datum = document.Datum;
  open.KDNr = document.KDNr;
  open.KDName = document.KDName;
  open.Ansprechpartner = document.Ansprechpartner;
  open.Straße = document.Straße;
  open.PLZ = document.PLZ;
  open.Wohnort = document.Wohnort;
  open.UnsereZeichen = document.UnsereZeichen;
  open.IhreZeichen = document.IhreZeichen;
  open.kindWord = document.kindWord;
  open.BruttoButton = document.BruttoButton;
  open.NettoButton = document.NettoButton;
  open.Gesamt = document.Gesamt;
  open.MWST = document.MWST;
  open.MWST2 = document.MWST2;
  open.Betrag = document.Betrag;
  return open;
}

}  // namespace kontorwerk
