// Making and changing a partner: the mechanism behind KDanlegen and LFanlegen.
//
//   KundeBearbeiten  Save
//   false            issues a number, appends the partner; KundeBearbeiten becomes true
//   true             replaces the lines of the number in the first box
//
// Geaendert is set by any change of a box and cleared by a save that has reached the table.
#pragma once

#include <functional>
#include <string_view>

#include "partners/APAuswahl.h"
#include "partners/PartnerFields.h"
#include "partners/PartnerKind.h"
#include "partners/PartnerReceiver.h"
#include "platform/ChoiceControls.h"
#include "platform/Context.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"
#include "store/Text.h"

namespace kontorwerk {

// What the search screen of a kind keeps for both screens; it outlives the closing of either.
struct PartnerFlags {
  bool KundeBearbeiten = false;  // the next save replaces a line instead of appending one
  bool KundeGewaehlt = false;    // a partner of the result list is loaded
};

class PartnerEdit : public Screen {
 public:
  // Opens the partner for a change. Boxes that hold another one, changed or not, are overwritten.
  void Edit(const Partner& partner);
  [[nodiscard]] bool Geaendert() const { return geaendert_; }

 protected:
  PartnerEdit(Context& context, const PartnerKind& kind, PartnerFlags& flags, const PartnerReceivers& receivers,
              APAuswahl& chooser);

 private:
  void OnLoad() override;
  void OnActivate() override;
  void OnUnload() override;
  void OnCloseRequest() override { Leave(); }

  // False, and a message in the status bar, if nothing was changed; false as well if the table could not be
  // written: the boxes then still count as changed.
  bool Save();
  void SaveAndBeginNext();
  void SaveAndTakeOver();
  void Leave();
  void GoToSearch();
  void ShowPrompts();
  void Tell(std::string_view text) { StatusBar1.SetPanel(4, text); }

  Context& context_;
  const PartnerKind& kind_;
  PartnerFlags& flags_;
  const PartnerReceivers& receivers_;
  APAuswahl& chooser_;
  bool geaendert_ = false;

 public:
  PartnerFields Fields;
  StatusBar StatusBar1{*this, "StatusBar1"};
  CommandButton Command1{*this, "Command1"};
  CommandButton Command2{*this, "Command2"};
  CommandButton Command3{*this, "Command3"};
  CommandButton Command4{*this, "Command4"};
  CommandButton SpÜbernahme{*this, "SpÜbernahme"_t};
};

}  // namespace kontorwerk
