// The waiting field is held here only until somebody is chosen for it.
#include "partners/LFsuchen.h"

#include <utility>

namespace kontorwerk {

LFsuchen::LFsuchen(Context& context, PartnerFlags& flags, PartnerEdit& edit, const PartnerReceivers& receivers,
                   APAuswahl& chooser)
    : PartnerSearch(context, SupplierKind(), {.addNew = "LFneu", .remove = "LFkill"}, flags, edit, receivers, chooser) {
}

void LFsuchen::ChooseSupplierFor(SupplierTarget target) {
  target_ = std::move(target);
  Show();
}

void LFsuchen::AllowPartnerMenus(bool allowed) {
  PartnerSearch::AllowPartnerMenus(allowed);
  Allow(LFDaten_Druck, allowed);
}

bool LFsuchen::TakenBeforeEditors(const PartnerFields& fields) {
  const SupplierTarget target = std::exchange(target_, {});
  if (!target.Waits()) return false;
  target.take(fields.Text(partner::kName));
  return true;
}

void LFsuchen::Cancel() {
  target_ = {};
  PartnerSearch::Cancel();
}

}  // namespace kontorwerk
