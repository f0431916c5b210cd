// The block of open documents is seen only while the chosen customer has one.
#include "partners/KDsuchen.h"

#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {

KDsuchen::KDsuchen(Context& context, PartnerFlags& flags, PartnerEdit& edit, const PartnerReceivers& receivers,
                   APAuswahl& chooser)
    : PartnerSearch(context, CustomerKind(), {.addNew = "KDneu", .remove = "Kdkill"}, flags, edit, receivers, chooser) {
  Suchergebnis2.OnDoubleClick = [this] { PreviewDocument(); };
  Command12.OnClick = [this] { GoToOpenDocuments(); };
}

void KDsuchen::OnLoad() {
  Allow(Kundenhistorie, true);
  Allow(KDDrucken, true, {&KDAdresse_Drucken, &KDBelege_Drucken});
}

void KDsuchen::AllowPartnerMenus(bool allowed) {
  PartnerSearch::AllowPartnerMenus(allowed);
  Allow(KDAdresse_Drucken, allowed);
  Allow(KDBelege_Drucken, allowed);
}

void KDsuchen::ShowMore(std::string_view number) {
  const PartnerDocuments open = PartnerDocumentsOf(context_.store.ReadTableText(table::kOpenDocuments), number);
  ShowDocuments(open);
  SetDocumentsVisible(!open.documents.empty());
}

void KDsuchen::ShowDocuments(const PartnerDocuments& open) {
  std::vector<ListRow> rows;
  for (const PartnerDocument& document : open.documents) {
    ListRow row;
    row.cells = {Concat(document.kind, " ", document.number),
                 document.date,
                 document.gross,
                 document.paid,
                 document.rest,
                 document.reminderDate};
    rows.push_back(std::move(row));
  }
  Suchergebnis2.SetRows(std::move(rows));
  Label18.SetCaption(open.invoices);
  Label19.SetCaption(open.deliveryNotes);
  Label20.SetCaption(open.quotations);
  Label21.SetCaption(open.creditNotes);
}

void KDsuchen::SetDocumentsVisible(bool visible) {
  for (Control* control : documentControls_) control->SetVisible(visible);
  Command12.SetEnabled(visible && context_.desktop.Find("OBsuche") != nullptr);
}

void KDsuchen::PreviewDocument() {
  const std::string& document = Suchergebnis2.SelectedCell(1);
  if (preview_ && !document.empty()) preview_(NthWord(document, 1), LTrim(WordsFrom(document, 2)));
}

void KDsuchen::GoToOpenDocuments() {
  Screen* const openDocuments = context_.desktop.Find("OBsuche");
  if (!openDocuments) return;
  for (const std::string_view name : {"Auftragserfassung", "ABRGForm"})
    if (Screen* editor = context_.desktop.Find(name)) editor->Unload();
  openDocuments->Show();
  Unload();
  edit_.Unload();
}

}  // namespace kontorwerk
