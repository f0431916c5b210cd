// The operator's hands at the real windows: clicks, typing and keys reach the widgets as events, and the controls
// through them. What cannot be reached by hand at the moment (a page of tabs that is not open) is done at the control
// itself.
#pragma once

#include <memory>

#include "platform/headless/Driver.h"

namespace kontorwerk {

class Desktop;

// Sets up the application and the windows of all screens of `desktop`, which must outlive the driver. Screens may
// join later. Once a process.
[[nodiscard]] std::unique_ptr<Driver> MakeQtDriver(int& argc, char** argv, Desktop& desktop);

}  // namespace kontorwerk
