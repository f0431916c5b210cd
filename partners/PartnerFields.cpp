// Boxes made from the kind's names, so that a further column needs a name there and a box on the forms, nothing here.
#include "partners/PartnerFields.h"

namespace kontorwerk {

PartnerFields::PartnerFields(Screen& owner, const PartnerKind& kind) {
  for (const std::string_view name : kind.boxes) boxes_.emplace_back(owner, name);
}

Partner PartnerFields::Read() const {
  Partner partner;
  for (const TextBox& box : boxes_) partner.texts.push_back(box.Text());
  return partner;
}

void PartnerFields::Fill(const Partner& partner) {
  int column = 0;
  for (TextBox& box : boxes_) box.SetText(partner.Text(++column));
}

void PartnerFields::Clear() { Fill({}); }

void PartnerFields::SetRecordVisible(bool visible) {
  for (TextBox& box : boxes_)
    if (&box != &Box(partner::kName)) box.SetVisible(visible);
}

PartnerAddress PartnerFields::Address() const {
  return {.KDNr = Text(partner::kNumber),
          .Anrede = Text(partner::kAnrede),
          .KDName = Text(partner::kName),
          .Straße = Text(partner::kStraße),
          .PLZ = Text(partner::kPLZ),
          .Wohnort = Text(partner::kWohnort),
          .Vorwahl1 = Text(partner::kVorwahl1),
          .Tel = Text(partner::kTel),
          .Vorwahl2 = Text(partner::kVorwahl2),
          .Fax = Text(partner::kFax),
          .Vorwahl3 = Text(partner::kVorwahl3),
          .Mobil = Text(partner::kMobil),
          .email = Text(partner::kEmail),
          .Homepage = Text(partner::kHomepage)};
}

bool PartnerFields::HasContact() const {
  for (int slot = 1; slot <= partner::kContactSlots; ++slot)
    if (!Text(partner::ContactName(slot)).empty()) return true;
  return false;
}

}  // namespace kontorwerk
