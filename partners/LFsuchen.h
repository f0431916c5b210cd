// "Lieferanten suchen": beside what every partner search does, the choice of a supplier's name for a field of another
// screen, and the entry for the supplier's report.
#pragma once

#include "partners/PartnerSearch.h"
#include "partners/SupplierTarget.h"

namespace kontorwerk {

class LFsuchen final : public PartnerSearch {
 public:
  LFsuchen(Context& context, PartnerFlags& flags, PartnerEdit& edit, const PartnerReceivers& receivers,
           APAuswahl& chooser);

  // Shows the search for a field that waits for a name. The next supplier taken over goes there, before any editor is
  // looked at; a cancelled search forgets the field, a new supplier made on the way does not.
  void ChooseSupplierFor(SupplierTarget target);

  MenuEntry LFDaten_Druck{*this, "LFDaten_Druck"};

 private:
  void AllowPartnerMenus(bool allowed) override;
  bool TakenBeforeEditors(const PartnerFields& fields) override;
  void Cancel() override;

  SupplierTarget target_;
};

}  // namespace kontorwerk
