#include "admin/AdminScreens.h"

namespace kontorwerk {

AdminScreens::AdminScreens(Context& context, ControlCentre& controlCentre)
    : verzeichniswahl(context), einstellungen(context, controlCentre, verzeichniswahl) {
  verzeichniswahl.SetTarget(&einstellungen);
  context.desktop.Add(verzeichniswahl);
  context.desktop.Add(einstellungen);
}

}  // namespace kontorwerk
