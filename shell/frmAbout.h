// The about box: name and version of the program, and a way to the machine's system information.
#pragma once

#include "platform/Context.h"
#include "platform/Screen.h"
#include "platform/TextControls.h"

namespace kontorwerk {

class frmAbout final : public Screen {
 public:
  explicit frmAbout(Context& context);

  Label lblTitle{*this, "lblTitle"};
  Label lblVersion{*this, "lblVersion"};
  CommandButton cmdSysInfo{*this, "cmdSysInfo"};
  CommandButton cmdOK{*this, "cmdOK"};

 private:
  void OnLoad() override;
};

}  // namespace kontorwerk
