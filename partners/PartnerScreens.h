// The five screens of the partners, wired together.
#pragma once

#include "partners/APAuswahl.h"
#include "partners/KDanlegen.h"
#include "partners/KDsuchen.h"
#include "partners/LFanlegen.h"
#include "partners/LFsuchen.h"
#include "partners/PartnerReceiver.h"
#include "partners/SupplierTarget.h"
#include "platform/Context.h"

namespace kontorwerk {

class PartnerScreens {
 public:
  // Makes the screens known to the desktop. The context must outlive them.
  explicit PartnerScreens(Context& context);

  // The editors that can take a partner over; each must outlive these screens or be set to null before it goes.
  void SetOrderReceiver(PartnerReceiver* order) { receivers_.order = order; }
  void SetDocumentReceiver(PartnerReceiver* document) { receivers_.document = document; }
  void SetDocumentPreview(PartnerDocumentPreview preview) { customerSearch_.SetDocumentPreview(std::move(preview)); }
  void ChooseSupplierFor(SupplierTarget target) { supplierSearch_.ChooseSupplierFor(std::move(target)); }

 private:
  PartnerReceivers receivers_;
  PartnerFlags customerFlags_;
  PartnerFlags supplierFlags_;
  APAuswahl chooser_;
  KDanlegen customerEdit_;
  KDsuchen customerSearch_;
  LFanlegen supplierEdit_;
  LFsuchen supplierSearch_;
};

}  // namespace kontorwerk
