// All that is special about customers lies in the description of their kind.
#include "partners/KDanlegen.h"

namespace kontorwerk {

KDanlegen::KDanlegen(Context& context, PartnerFlags& flags, const PartnerReceivers& receivers, APAuswahl& chooser)
    : PartnerEdit(context, CustomerKind(), flags, receivers, chooser) {}

}  // namespace kontorwerk
