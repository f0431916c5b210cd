// What the screens that can take a partner over offer: the document editor and the order editor register themselves
// with one of these, and the screens of the partners know nothing else of them.
#pragma once

#include <string>
#include <string_view>

namespace kontorwerk {

// A partner's address as it travels into a document or an order. A supplier's number and name stand in KDNr and KDName.
struct PartnerAddress {
  std::string KDNr, Anrede, KDName, Straße, PLZ, Wohnort;
  std::string Vorwahl1, Tel, Vorwahl2, Fax, Vorwahl3, Mobil, email, Homepage;
};

// How a partner comes: straight from his screen because he has no contact persons, or by way of the choice of one.
enum class TakeOverRoute { Direct, ContactChoice };

class PartnerReceiver {
 public:
  virtual ~PartnerReceiver() = default;
  // True while the screen is open for a record that can take a partner.
  [[nodiscard]] virtual bool UebernahmeOffen() const = 0;
  // Fills the boxes of these names (the document editor: KDNr to Wohnort alone; an order gets the chosen person's
  // e-mail in `email` if the user wants that), puts the contact person, who may be empty, into Ansprechpartner,
  // shows the screen and moves the focus: the order editor to ComboArt; the document editor to LGNr(0) on the direct
  // route and to UnsereZeichen on the other.
  virtual void TakePartner(const PartnerAddress& address, std::string_view ansprechpartner, TakeOverRoute route) = 0;
};

// Who may wait for a partner; null while a screen does not exist. Shared by all screens of the partners.
struct PartnerReceivers {
  PartnerReceiver* order = nullptr;
  PartnerReceiver* document = nullptr;

  [[nodiscard]] bool OrderWaits() const { return order && order->UebernahmeOffen(); }
  [[nodiscard]] bool DocumentWaits() const { return document && document->UebernahmeOffen(); }
};

}  // namespace kontorwerk
