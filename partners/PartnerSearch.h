// Finding a partner by any text, showing him in full, and what starts from there: the mechanism behind KDsuchen and
// LFsuchen. The name box doubles as the search box.
//
//   state            Command1 reads         Command1 or Enter in the name box
//   no partner       "Suchen" or "Suche"    searches for the text of the name box
//   partner loaded   "Neue Suche"           clears the screen, leads to no partner
//
// Kept: after the clearing the caption is "Suche", only a fresh screen reads "Suchen".
#pragma once

#include <initializer_list>
#include <string_view>
#include <vector>

#include "partners/PartnerEdit.h"
#include "partners/PartnerFields.h"
#include "partners/PartnerKind.h"
#include "partners/PartnerTable.h"
#include "platform/ChoiceControls.h"
#include "platform/Context.h"
#include "platform/ListView.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"

namespace kontorwerk {

class PartnerSearch : public Screen {
 protected:
  // Names of the menu entries that differ between the kinds.
  struct MenuNames {
    std::string_view addNew;
    std::string_view remove;
  };

  PartnerSearch(Context& context, const PartnerKind& kind, const MenuNames& menus, PartnerFlags& flags,
                PartnerEdit& edit, const PartnerReceivers& receivers, APAuswahl& chooser);

  void OnActivate() override;
  void OnCloseRequest() override { Cancel(); }

  // What a kind adds: the menu entries that need a chosen partner, more to show of one, more to hide.
  virtual void AllowPartnerMenus(bool allowed);
  virtual void ShowMore(std::string_view number) { (void)number; }
  virtual void HideMore() {}
  // True if the chosen partner has gone to somebody who comes before the waiting editors.
  virtual bool TakenBeforeEditors(const PartnerFields& fields) {
    (void)fields;
    return false;
  }
  virtual void Cancel();

  // The one place where menu entries are enabled: an entry can be used only where a command stands behind it, a
  // submenu where one stands behind at least one of its entries.
  static void Allow(MenuEntry& entry, bool allowed, std::initializer_list<const MenuEntry*> entries = {});
  // After a deletion the number is empty, and no partner counts as chosen.
  [[nodiscard]] bool HasPartner() const { return flags_.KundeGewaehlt && !Fields.Text(partner::kNumber).empty(); }
  void Tell(std::string_view text) { StatusBar1.SetPanel(4, text); }

  Context& context_;
  const PartnerKind& kind_;
  PartnerFlags& flags_;
  PartnerEdit& edit_;

 private:
  void Search();
  void ClearScreen();
  void ShowHits(const std::vector<PartnerHit>& hits);
  void LoadChosen();
  void ForgetPartner();
  void ShowPartner(const Partner& partner);
  void ShowAddressButtons();
  void ShowLetterMenu();
  void TakeOver();
  void EditPartner();
  void AddNew();
  void RemovePartner();
  void WriteMail(int column);
  void OpenHomepage();

  const PartnerReceivers& receivers_;
  APAuswahl& chooser_;

 public:
  PartnerFields Fields;
  TextBox Erfassdatum{*this, "Erfassdatum"};
  Label Label12{*this, "Label12"};
  ListView Suchergebnis{*this, "Suchergebnis"};
  StatusBar StatusBar1{*this, "StatusBar1"};
  CommandButton Command1{*this, "Command1"};
  CommandButton Command2{*this, "Command2"};
  CommandButton Command3{*this, "Command3"};
  CommandButton Command4{*this, "Command4"};
  CommandButton Command5{*this, "Command5"};
  CommandButton Command6{*this, "Command6"};
  CommandButton Command7{*this, "Command7"};
  CommandButton Command8{*this, "Command8"};
  CommandButton Command9{*this, "Command9"};
  CommandButton Command10{*this, "Command10"};
  CommandButton Command11{*this, "Command11"};
  MenuEntry NewEntry;
  MenuEntry RemoveEntry;
  MenuEntry Briefschreiben{*this, "Briefschreiben"};
  MenuEntry kein_Ansprechpartner{*this, "kein_Ansprechpartner"};
  MenuEntry AP1{*this, "AP1"};
  MenuEntry AP2{*this, "AP2"};
  MenuEntry AP33{*this, "AP33"};  // the third slot
  MenuEntry AP4{*this, "AP4"};
  MenuEntry AP5{*this, "AP5"};

 private:
  // A box that holds an address, and the button beside it that writes to it or opens it.
  struct AddressButton {
    int column;
    CommandButton* button;
  };
  std::vector<AddressButton> addressButtons_{
      {partner::kEmail, &Command5},          {partner::ContactEmail(1), &Command6},
      {partner::ContactEmail(2), &Command7}, {partner::ContactEmail(3), &Command8},
      {partner::ContactEmail(4), &Command9}, {partner::ContactEmail(5), &Command10},
      {partner::kHomepage, &Command11},
  };
  std::vector<MenuEntry*> letterEntries_{&AP1, &AP2, &AP33, &AP4, &AP5};
};

}  // namespace kontorwerk
