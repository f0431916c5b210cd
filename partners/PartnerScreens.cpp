// The flags and receivers lie beside the screens, so that they outlive the closing of any of them.
#include "partners/PartnerScreens.h"

namespace kontorwerk {

PartnerScreens::PartnerScreens(Context& context)
    : chooser_(context, receivers_),
      customerEdit_(context, customerFlags_, receivers_, chooser_),
      customerSearch_(context, customerFlags_, customerEdit_, receivers_, chooser_),
      supplierEdit_(context, supplierFlags_, receivers_, chooser_),
      supplierSearch_(context, supplierFlags_, supplierEdit_, receivers_, chooser_) {
  for (Screen* screen :
       std::initializer_list<Screen*>{&customerEdit_, &customerSearch_, &supplierEdit_, &supplierSearch_, &chooser_})
    context.desktop.Add(*screen);
}

}  // namespace kontorwerk
