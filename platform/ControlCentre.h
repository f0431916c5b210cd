// What other screens ask of the control centre after they have changed something.
#pragma once

namespace kontorwerk {

class ControlCentre {
 public:
  virtual ~ControlCentre() = default;
  // Reads config.txt and UpdateCheck.txt into the settings; shows the control centre, or the settings dialog in its
  // place where a rate or a folder is missing.
  virtual void ReadConfig() = 0;
  // Recomputes the minimum-stock reminder, then the open-document reminder.
  virtual void CountStockItems() = 0;
  virtual void OpenDocumentReminder() = 0;
  // Refills the day list and the bold days.
  virtual void RefreshAppointments() = 0;
};

}  // namespace kontorwerk
