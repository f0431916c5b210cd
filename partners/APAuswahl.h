// The choice of a contact person on the way of a partner into an order or a document. It keeps a copy of the partner in
// invisible boxes, since the screens that opened it are closed at once.
#pragma once

#include <algorithm>
#include <array>
#include <string>

#include "partners/PartnerFields.h"
#include "partners/PartnerKind.h"
#include "partners/PartnerReceiver.h"
#include "platform/ChoiceControls.h"
#include "platform/Context.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"
#include "store/Text.h"

namespace kontorwerk {

class APAuswahl final : public Screen {
 public:
  APAuswahl(Context& context, const PartnerReceivers& receivers);

  // Takes the copy and shows the choice: "kein Ansprechpartner", then the five slots, empty ones included.
  void Offer(const PartnerFields& partner, const PartnerKind& kind);

  ComboBox ComboAnsprechpartner{*this, "ComboAnsprechpartner"};
  CommandButton OKButton{*this, "OKButton"};
  CommandButton CancelButton{*this, "CancelButton"};
  TextBox KDNr{*this, "KDNr"};
  TextBox Anrede{*this, "Anrede"};
  TextBox KDName{*this, "KDName"};
  TextBox Straße{*this, "Straße"_t};
  TextBox PLZ{*this, "PLZ"};
  TextBox Wohnort{*this, "Wohnort"};
  TextBox Vorwahl1{*this, "Vorwahl1"};
  TextBox Tel{*this, "Tel"};
  TextBox Vorwahl2{*this, "Vorwahl2"};
  TextBox Fax{*this, "Fax"};
  TextBox Vorwahl3{*this, "Vorwahl3"};
  TextBox Mobil{*this, "Mobil"};
  TextBox email{*this, "email"};
  TextBox Homepage{*this, "Homepage"};
  TextBox APEmail1{*this, "APEmail1"};
  TextBox APEmail2{*this, "APEmail2"};
  TextBox APEmail3{*this, "APEmail3"};
  TextBox APEmail4{*this, "APEmail4"};
  TextBox APEmail5{*this, "APEmail5"};

 private:
  void OnActivate() override { ComboAnsprechpartner.SetFocus(); }

  void TakeOver();
  [[nodiscard]] PartnerAddress Copy() const;
  void SetCopy(const PartnerAddress& address);
  // The slot chosen, counted from 1; 0 for no contact person.
  [[nodiscard]] int ChosenSlot() const { return std::max(ComboAnsprechpartner.ListIndex(), 0); }
  [[nodiscard]] std::string ChosenContact() const;
  // The e-mail that goes into the order: the chosen person's if the user wants it, otherwise the partner's.
  [[nodiscard]] std::string EmailForOrder() const;

  Context& context_;
  const PartnerReceivers& receivers_;
  const PartnerKind* kind_ = nullptr;
  std::array<TextBox*, partner::kContactSlots> contactEmails_{&APEmail1, &APEmail2, &APEmail3, &APEmail4, &APEmail5};
};

}  // namespace kontorwerk
