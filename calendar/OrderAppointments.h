// What the calendar asks of the screen in which an order is edited: the three labels that show the order's
// appointments, its save command, and opening an order. The calendar holds a pointer to it, which is null as long as no
// such screen is part of the program.
#pragma once

#include <string_view>

namespace kontorwerk {

class OrderAppointments {
 public:
  // One of the three labels, 1 to 3.
  static constexpr int kNoSlot = 0;

  virtual ~OrderAppointments() = default;
  // True while the screen is open and shows the order of this number.
  [[nodiscard]] virtual bool ShowsOrder(std::string_view orderNumber) const = 0;
  // Puts the text into the label that the user asked an appointment for, without such a wish into the first free one;
  // the wish is then fulfilled. Without a free label nothing happens.
  virtual void AddAppointment(std::string_view text) = 0;
  // Puts the text into the label, whatever it showed; an open wish is fulfilled with it.
  virtual void SetAppointment(int slot, std::string_view text) = 0;
  // Empties the label that shows exactly this text; which one, or kNoSlot.
  virtual int ClearAppointment(std::string_view text) = 0;
  // Runs the screen's save command. Where nobody is named as the last to work on the order, "temporäre Bearbeitung"
  // is entered first, so that the save is not refused.
  virtual void SaveOrder() = 0;
  // Fills the screen with the order's row and shows it.
  virtual void OpenOrder(std::string_view row) = 0;
};

}  // namespace kontorwerk
