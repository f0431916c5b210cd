// Appointments as Termindb.dbf holds them, and the copy of an appointment in the row of its order. Operations over
// texts and tables; the screens decide when they run and what is said about it.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "store/RecordStore.h"

namespace kontorwerk {

// Columns of Termindb.dbf. Date, begin and end together are the key; the order of the rows is that of their making.
namespace appointment {
enum Column { kDate = 1, kBegin, kEnd, kSubject, kNotes, kOrderNumber, kColour };
}  // namespace appointment

// Columns of Auftragsdb.dbf that concern appointments: the order's key and its three copies.
inline constexpr int kOrderKeyColumn = 1;
inline constexpr std::array<int, 3> kOrderAppointmentColumns = {19, 20, 21};

struct Appointment {
  std::string date;   // dd.mm.yyyy
  std::string begin;  // hh:mm
  std::string end;    // hh:mm, the hour may exceed 23
  std::string subject;
  std::string notes;        // line breaks are CR LF
  std::string orderNumber;  // empty: no order
  std::string colour;       // decimal colour value
};

[[nodiscard]] Appointment ReadAppointment(std::string_view row);
// The row of the table, without closing apostrophe and line end.
[[nodiscard]] std::string AppointmentRow(const Appointment& appointment);
// The copy that an order holds: "15.11.2026, 09:15 - 10:00".
[[nodiscard]] std::string AppointmentText(std::string_view date, std::string_view begin, std::string_view end);

// The first row with this key; nothing if there is none.
[[nodiscard]] std::optional<Appointment> FindAppointment(RecordStore& store, std::string_view date,
                                                         std::string_view begin, std::string_view end);

// True if an appointment and a row of the same day get in each other's way. The times are clock numbers, 09:15 is 915.
// Touching at an end is allowed.
[[nodiscard]] bool AppointmentsOverlap(int begin, int end, int rowBegin, int rowEnd);
// The last row of `table` that overlaps, as "15.11.2026, 09:15-10:00 : Kundenbesuch"; nothing if none does.
[[nodiscard]] std::optional<std::string> OverlappingAppointment(std::string_view table, std::string_view date,
                                                                std::string_view begin, std::string_view end);

enum class OrderCopy { Clear, Keep };
// Removes every row with the key and drops blank lines. With OrderCopy::Clear the copy in the order's row goes too, and
// Auftragsdb.dbf loses its blank lines. The number of the removed appointment's order, empty without one.
// An empty argument does nothing.
std::string DeleteAppointment(RecordStore& store, std::string_view date, std::string_view begin, std::string_view end,
                              OrderCopy orderCopy);
// Where the order's row holds `oldText` as one of its copies, that text becomes `newText` wherever it stands in the
// line.
void ReplaceOrderCopy(RecordStore& store, std::string_view orderNumber, std::string_view oldText,
                      std::string_view newText, BlankRows blankRows);

}  // namespace kontorwerk
