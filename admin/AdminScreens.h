// The screens of the administration, wired together and known to the desktop.
#pragma once

#include "admin/Einstellungen.h"
#include "admin/Verzeichniswahl.h"

namespace kontorwerk {

struct AdminScreens {
  AdminScreens(Context& context, ControlCentre& controlCentre);
  AdminScreens(const AdminScreens&) = delete;
  AdminScreens& operator=(const AdminScreens&) = delete;

  Verzeichniswahl verzeichniswahl;
  Einstellungen einstellungen;
};

}  // namespace kontorwerk
