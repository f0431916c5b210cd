// "Lieferant anlegen / bearbeiten".
#pragma once

#include "partners/PartnerEdit.h"

namespace kontorwerk {

class LFanlegen final : public PartnerEdit {
 public:
  LFanlegen(Context& context, PartnerFlags& flags, const PartnerReceivers& receivers, APAuswahl& chooser);
};

}  // namespace kontorwerk
