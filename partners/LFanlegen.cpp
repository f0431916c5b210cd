// All that is special about suppliers, their bank and ordering boxes included, lies in the description of their kind.
#include "partners/LFanlegen.h"

namespace kontorwerk {

LFanlegen::LFanlegen(Context& context, PartnerFlags& flags, const PartnerReceivers& receivers, APAuswahl& chooser)
    : PartnerEdit(context, SupplierKind(), flags, receivers, chooser) {}

}  // namespace kontorwerk
