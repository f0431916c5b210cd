// The screens of the documents, wired together and known to the desktop.
#pragma once

#include <utility>

#include "documents/ABRGForm.h"
#include "documents/LFRGForm.h"
#include "partners/PartnerReceiver.h"
#include "platform/Context.h"
#include "platform/ControlCentre.h"
#include "stock/PositionReceiver.h"

namespace kontorwerk {

class DocumentScreens {
 public:
  // Both must outlive the screens.
  DocumentScreens(Context& context, ControlCentre& controlCentre);
  DocumentScreens(const DocumentScreens&) = delete;
  DocumentScreens& operator=(const DocumentScreens&) = delete;

  void SetActions(DocumentActions actions);

  // The editor for a new document, and the search for its customer above it.
  void OpenNewDocument();
  // The editor as the search screens of partners and articles know it.
  [[nodiscard]] PartnerReceiver& Partners() { return editor_; }
  [[nodiscard]] PositionReceiver& Positions() { return editor_; }
  [[nodiscard]] ABRGForm& Editor() { return editor_; }
  // The small choice dialog that other screens borrow.
  [[nodiscard]] LFRGForm& Choice() { return choice_; }

 private:
  DocumentActions actions_;
  LFRGForm choice_;
  ABRGForm editor_;
};

}  // namespace kontorwerk
