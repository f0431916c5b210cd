// "Kunde anlegen / bearbeiten".
#pragma once

#include "partners/PartnerEdit.h"

namespace kontorwerk {

class KDanlegen final : public PartnerEdit {
 public:
  KDanlegen(Context& context, PartnerFlags& flags, const PartnerReceivers& receivers, APAuswahl& chooser);
};

}  // namespace kontorwerk
