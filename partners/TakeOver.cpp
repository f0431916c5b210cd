// With both editors open the order comes first, so that the document is in front afterwards.
#include "partners/TakeOver.h"

namespace kontorwerk {

bool TakeOverPartner(const PartnerFields& fields, const PartnerKind& kind, const PartnerReceivers& receivers,
                     APAuswahl& chooser) {
  const bool orderWaits = receivers.OrderWaits();
  const bool documentWaits = receivers.DocumentWaits();
  if (!orderWaits && !documentWaits) return false;
  if (fields.HasContact()) {
    chooser.Offer(fields, kind);
    return true;
  }
  if (orderWaits) receivers.order->TakePartner(fields.Address(), {}, TakeOverRoute::Direct);
  if (documentWaits) receivers.document->TakePartner(fields.Address(), {}, TakeOverRoute::Direct);
  return true;
}

}  // namespace kontorwerk
