// The dialog of a first start: asks for the first numbers of the document series and makes the four tables.
// Its outcome stands in the settings' `NewTablesResult`.
#pragma once

#include "platform/Context.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"

namespace kontorwerk {

class ABRGNewDialog final : public Screen {
 public:
  explicit ABRGNewDialog(Context& context);

  TextBox Text1{*this, "Text1"};  // first invoice
  TextBox Text2{*this, "Text2"};  // first quotation
  TextBox Text3{*this, "Text3"};  // first delivery note
  TextBox Text4{*this, "Text4"};  // first credit note
  Label Label7{*this, "Label7"};
  Label Label8{*this, "Label8"};
  Label Label10{*this, "Label10"};
  Label Label13{*this, "Label13"};
  CommandButton OKButton{*this, "OKButton"};
  CommandButton CancelButton{*this, "CancelButton"};

 private:
  void OnLoad() override;
  void OnUnload() override;
  void MakeTables();

  Context& context_;
};

}  // namespace kontorwerk
