// The take-over of a partner into whoever waits for one: the order editor, the document editor, or both.
#pragma once

#include "partners/APAuswahl.h"
#include "partners/PartnerFields.h"
#include "partners/PartnerKind.h"
#include "partners/PartnerReceiver.h"

namespace kontorwerk {

// Hands the partner of the boxes over, or shows the choice of his contact persons if he has any. False if nobody
// waits: then nothing has happened and the calling screen stays open. Closing it is left to the caller.
[[nodiscard]] bool TakeOverPartner(const PartnerFields& fields, const PartnerKind& kind,
                                   const PartnerReceivers& receivers, APAuswahl& chooser);

}  // namespace kontorwerk
