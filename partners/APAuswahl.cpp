// Both editors may wait at once; each then gets the same choice.
#include "partners/APAuswahl.h"

namespace kontorwerk {

APAuswahl::APAuswahl(Context& context, const PartnerReceivers& receivers)
    : Screen(context.desktop, "APAuswahl"), context_(context), receivers_(receivers) {
  OKButton.OnClick = [this] { TakeOver(); };
  CancelButton.OnClick = [this] { Unload(); };
}

void APAuswahl::Offer(const PartnerFields& partner, const PartnerKind& kind) {
  Load();
  kind_ = &kind;
  SetCopy(partner.Address());
  std::vector<std::string> items = {"kein Ansprechpartner"};
  for (int slot = 1; slot <= partner::kContactSlots; ++slot) {
    items.push_back(partner.Text(partner::ContactName(slot)));
    contactEmails_[static_cast<std::size_t>(slot - 1)]->SetText(partner.Text(partner::ContactEmail(slot)));
  }
  ComboAnsprechpartner.SetItems(std::move(items));
  ComboAnsprechpartner.SetListIndex(0);
  Show();
}

void APAuswahl::SetCopy(const PartnerAddress& address) {
  KDNr.SetText(address.KDNr);
  Anrede.SetText(address.Anrede);
  KDName.SetText(address.KDName);
  Straße.SetText(address.Straße);
  PLZ.SetText(address.PLZ);
  Wohnort.SetText(address.Wohnort);
  Vorwahl1.SetText(address.Vorwahl1);
  Tel.SetText(address.Tel);
  Vorwahl2.SetText(address.Vorwahl2);
  Fax.SetText(address.Fax);
  Vorwahl3.SetText(address.Vorwahl3);
  Mobil.SetText(address.Mobil);
  email.SetText(address.email);
  Homepage.SetText(address.Homepage);
}

PartnerAddress APAuswahl::Copy() const {
  return {.KDNr = KDNr.Text(),
          .Anrede = Anrede.Text(),
          .KDName = KDName.Text(),
          .Straße = Straße.Text(),
          .PLZ = PLZ.Text(),
          .Wohnort = Wohnort.Text(),
          .Vorwahl1 = Vorwahl1.Text(),
          .Tel = Tel.Text(),
          .Vorwahl2 = Vorwahl2.Text(),
          .Fax = Fax.Text(),
          .Vorwahl3 = Vorwahl3.Text(),
          .Mobil = Mobil.Text(),
          .email = email.Text(),
          .Homepage = Homepage.Text()};
}

std::string APAuswahl::ChosenContact() const { return ChosenSlot() == 0 ? std::string() : ComboAnsprechpartner.Text(); }

std::string APAuswahl::EmailForOrder() const {
  const int slot = ChosenSlot();
  if (slot == 0) return email.Text();
  const std::string& contactEmail = contactEmails_[static_cast<std::size_t>(slot - 1)]->Text();
  if (contactEmail.empty()) return email.Text();
  const bool wanted = context_.platform.Ask("Soll die Email des Ansprechparnters in den Auftrag übernommen werden?"_t,
                                            "Email des Ansprechpartners übernehmen?"_t);
  return wanted ? contactEmail : email.Text();
}

void APAuswahl::TakeOver() {
  if (receivers_.OrderWaits()) {
    PartnerAddress address = Copy();
    address.email = EmailForOrder();
    receivers_.order->TakePartner(address, ChosenContact(), TakeOverRoute::ContactChoice);
  }
  if (receivers_.DocumentWaits())
    receivers_.document->TakePartner(Copy(), ChosenContact(), TakeOverRoute::ContactChoice);
  if (kind_) {
    for (const std::string_view name : {kind_->editScreen, kind_->searchScreen})
      if (Screen* screen = context_.desktop.Find(name)) screen->Unload();
  }
  Unload();
}

}  // namespace kontorwerk
