// Handlers of the search screens in the order in which a user meets them.
#include "partners/PartnerSearch.h"

#include <algorithm>

#include "partners/TakeOver.h"
#include "partners/WebAddress.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {
namespace {

constexpr int kNumberLength = 5;
constexpr std::string_view kNewSearch = "Neue Suche";

bool HasCommand(const MenuEntry& entry) { return static_cast<bool>(entry.OnClick); }

}  // namespace

PartnerSearch::PartnerSearch(Context& context, const PartnerKind& kind, const MenuNames& menus, PartnerFlags& flags,
                             PartnerEdit& edit, const PartnerReceivers& receivers, APAuswahl& chooser)
    : Screen(context.desktop, kind.searchScreen),
      context_(context),
      kind_(kind),
      flags_(flags),
      edit_(edit),
      receivers_(receivers),
      chooser_(chooser),
      Fields(*this, kind),
      NewEntry(*this, menus.addNew),
      RemoveEntry(*this, menus.remove) {
  Fields.Box(partner::kName).OnKey = [this](Key& key) {
    if (!key.Is(KeyCode::Enter)) return;
    key.handled = true;
    Search();
  };
  Suchergebnis.OnSelect = [this] { LoadChosen(); };
  Suchergebnis.OnColumnClick = [this](int column) { Suchergebnis.ToggleSort(column); };
  Suchergebnis.OnDoubleClick = [this] { TakeOver(); };
  Command1.OnClick = [this] { Search(); };
  Command2.OnClick = [this] { Cancel(); };
  Command3.OnClick = [this] { TakeOver(); };
  Command4.OnClick = [this] { EditPartner(); };
  for (const AddressButton& address : addressButtons_)
    address.button->OnClick = [this, column = address.column] { WriteMail(column); };
  Command11.OnClick = [this] { OpenHomepage(); };
  NewEntry.OnClick = [this] { AddNew(); };
  RemoveEntry.OnClick = [this] { RemovePartner(); };
}

void PartnerSearch::OnActivate() { Fields.Box(partner::kName).SetFocus(); }

void PartnerSearch::Allow(MenuEntry& entry, bool allowed, std::initializer_list<const MenuEntry*> entries) {
  const bool works = HasCommand(entry) || std::any_of(entries.begin(), entries.end(),
                                                      [](const MenuEntry* below) { return HasCommand(*below); });
  entry.SetEnabled(allowed && works);
}

void PartnerSearch::AllowPartnerMenus(bool allowed) {
  Allow(Briefschreiben, allowed, {&kein_Ansprechpartner, &AP1, &AP2, &AP33, &AP4, &AP5});
  Allow(kein_Ansprechpartner, allowed);
  for (MenuEntry* entry : letterEntries_) Allow(*entry, allowed);
}

// Kept: a partner who is open for a change in the edit screen meanwhile is saved as a new one after a new search.
void PartnerSearch::Search() {
  Tell("Suchen...");
  flags_.KundeGewaehlt = false;
  flags_.KundeBearbeiten = false;
  AllowPartnerMenus(false);
  if (Command1.Caption() == kNewSearch) {
    ClearScreen();
    return;
  }
  Suchergebnis.Clear();
  const std::string table = context_.store.ReadTableText(kind_.table);
  TextBox& number = Fields.Box(partner::kNumber);
  number.SetText(PadZeros(number.Text(), kNumberLength));  // Kept: the search itself does not look at the number
  ShowHits(FindPartners(table, Fields.Text(partner::kName)));
  Fields.Box(partner::kName).Clear();
  Tell("Suchen beendet!");
}

void PartnerSearch::ClearScreen() {
  Command1.SetCaption("Suche");
  Suchergebnis.Clear();
  Fields.Clear();
  Fields.SetRecordVisible(false);
  Erfassdatum.Clear();
  for (const AddressButton& address : addressButtons_) address.button->Hide();
  HideMore();
  Label12.SetCaption("Suchtext:");
  Fields.Box(partner::kName).SetFocus();
}

void PartnerSearch::ShowHits(const std::vector<PartnerHit>& hits) {
  std::vector<ListRow> rows;
  rows.reserve(hits.size());
  for (const PartnerHit& hit : hits) {
    ListRow row;
    for (const std::string_view text : {hit.number, hit.name, hit.Straße, hit.PLZ, hit.Wohnort})
      row.cells.emplace_back(text);
    rows.push_back(std::move(row));
  }
  Suchergebnis.SetRows(std::move(rows));
}

void PartnerSearch::LoadChosen() {
  if (Suchergebnis.Selected() == 0) return;
  const std::string number(NthWord(Suchergebnis.SelectedCell(1), 1));
  Fields.Box(partner::kNumber).SetText(number);
  if (number == kind_.numberCaption) return;
  AllowPartnerMenus(true);
  const std::optional<Partner> partner = FindPartner(context_.store.ReadTableText(kind_.table), number, kind_);
  if (partner) {
    ShowPartner(*partner);
  } else {
    ForgetPartner();
  }
}

// Somebody else has deleted the partner since the search: what is on the screen belongs to nobody.
void PartnerSearch::ForgetPartner() {
  flags_.KundeGewaehlt = false;
  AllowPartnerMenus(false);
  Fields.Clear();
  Erfassdatum.Clear();
  ShowAddressButtons();
  HideMore();
}

void PartnerSearch::ShowPartner(const Partner& partner) {
  Fields.Fill(partner);
  Erfassdatum.SetText(partner.Erfassdatum);
  Tell(Concat(kind_.createdOn, partner.Erfassdatum));
  ShowAddressButtons();
  Fields.SetRecordVisible(true);
  Label12.SetCaption(kind_.addressCaption);
  Command1.SetCaption(kNewSearch);
  ShowLetterMenu();
  flags_.KundeGewaehlt = true;
  Command4.SetCaption("bearbeiten");
  ShowMore(partner.Text(partner::kNumber));
}

void PartnerSearch::ShowAddressButtons() {
  for (const AddressButton& address : addressButtons_) {
    TextBox& box = Fields.Box(address.column);
    box.SetEnabled(!box.Text().empty());
    address.button->SetVisible(!box.Text().empty());
  }
}

void PartnerSearch::ShowLetterMenu() {
  int slot = 0;
  for (MenuEntry* entry : letterEntries_) {
    const std::string& name = Fields.Text(partner::ContactName(++slot));
    if (!name.empty()) entry->SetCaption(Concat("Ansprechpartner ", name, " verwenden."));
    entry->SetVisible(!name.empty());
  }
}

void PartnerSearch::TakeOver() {
  if (!HasPartner()) return;
  if (!TakenBeforeEditors(Fields) && !TakeOverPartner(Fields, kind_, receivers_, chooser_)) return;
  flags_.KundeGewaehlt = false;
  Unload();
}

void PartnerSearch::EditPartner() {
  if (HasPartner()) edit_.Edit(Fields.Read());
}

void PartnerSearch::AddNew() {
  if (edit_.Visible()) {
    context_.platform.Tell(Concat(kind_.alreadyOpen, kLineEnd, "Bitte Fenster schließen und erneut versuchen."_t));
    return;
  }
  flags_.KundeGewaehlt = false;
  flags_.KundeBearbeiten = false;
  edit_.Show();
  Unload();
}

// Documents, orders and open documents keep their copy of the address: nothing looks for them.
void PartnerSearch::RemovePartner() {
  if (!HasPartner()) return;
  const std::string number = Fields.Text(partner::kNumber);
  if (!context_.platform.Ask(kind_.DeleteQuestion(Fields.Text(partner::kName), number), kind_.deleteTitle)) return;
  const std::string rest = kontorwerk::RemovePartner(context_.store, kind_, number);
  ShowHits(FindPartners(rest, {}));
  Fields.Clear();
  Erfassdatum.Clear();
  Tell(kind_.deleted);
}

void PartnerSearch::Cancel() {
  flags_.KundeGewaehlt = false;
  Unload();
  edit_.Unload();
}

void PartnerSearch::WriteMail(int column) {
  const std::string& address = Fields.Text(column);
  if (address.empty()) return;
  Mail mail;
  mail.to = {address};
  context_.platform.SendMail(mail);
}

// The blank page first, so that the browser opens a fresh window.
void PartnerSearch::OpenHomepage() {
  const std::string address = Fields.Text(partner::kHomepage);
  if (!IsWebAddress(address)) return;
  context_.platform.Open("about:blank");
  context_.platform.Open(address);
}

}  // namespace kontorwerk
