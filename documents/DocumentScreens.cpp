#include "documents/DocumentScreens.h"

namespace kontorwerk {

DocumentScreens::DocumentScreens(Context& context, ControlCentre& controlCentre)
    : choice_(context), editor_(context, controlCentre, choice_) {
  context.desktop.Add(choice_);
  context.desktop.Add(editor_);
}

void DocumentScreens::SetActions(DocumentActions actions) {
  actions_ = std::move(actions);
  editor_.SetActions(actions_);
}

void DocumentScreens::OpenNewDocument() {
  editor_.Show();
  if (actions_.openCustomerSearch) actions_.openCustomerSearch();
}

}  // namespace kontorwerk
