#include "calendar/Appointments.h"

#include "calendar/AppointmentTimes.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

bool HasKey(std::string_view row, std::string_view date, std::string_view begin, std::string_view end) {
  return RecordField(row, appointment::kDate) == date && RecordField(row, appointment::kBegin) == begin &&
         RecordField(row, appointment::kEnd) == end;
}

bool HoldsCopy(std::string_view orderRow, std::string_view text) {
  for (const int column : kOrderAppointmentColumns)
    if (RecordField(orderRow, column) == text) return true;
  return false;
}

}  // namespace

Appointment ReadAppointment(std::string_view row) {
  const auto field = [row](int column) { return std::string(RecordField(row, column)); };
  Appointment result;
  result.date = field(appointment::kDate);
  result.begin = field(appointment::kBegin);
  result.end = field(appointment::kEnd);
  result.subject = field(appointment::kSubject);
  result.notes = MarksToLineBreaks(RecordField(row, appointment::kNotes));
  result.orderNumber = field(appointment::kOrderNumber);
  result.colour = field(appointment::kColour);
  return result;
}

std::string AppointmentRow(const Appointment& appointment) {
  return RecordLine({appointment.date, appointment.begin, appointment.end, appointment.subject,
                     LineBreaksToMarks(appointment.notes), appointment.orderNumber, appointment.colour});
}

std::string AppointmentText(std::string_view date, std::string_view begin, std::string_view end) {
  return Concat(date, ", ", begin, " - ", end);
}

std::optional<Appointment> FindAppointment(RecordStore& store, std::string_view date, std::string_view begin,
                                           std::string_view end) {
  const std::string table = store.ReadTableText(table::kAppointments);
  std::optional<Appointment> found;
  ForEachRow(table, [&](std::string_view row) {
    if (!found && HasKey(row, date, begin, end)) found = ReadAppointment(row);
  });
  return found;
}

bool AppointmentsOverlap(int begin, int end, int rowBegin, int rowEnd) {
  // Kept: the same begin with a later end, and an earlier begin with the same end, are accepted. Firms enter a long
  // visit over a short one this way.
  const bool inside = begin >= rowBegin && end <= rowEnd;
  const bool intoBegin = begin < rowBegin && end < rowEnd && end > rowBegin;
  const bool outOfEnd = begin > rowBegin && end > rowEnd && begin < rowEnd;
  const bool around = begin < rowBegin && end > rowEnd;
  return inside || intoBegin || outOfEnd || around;
}

std::optional<std::string> OverlappingAppointment(std::string_view table, std::string_view date, std::string_view begin,
                                                  std::string_view end) {
  std::optional<std::string> last;
  ForEachRow(table, [&](std::string_view row) {
    if (RecordField(row, appointment::kDate) != date) return;
    const std::string_view rowBegin = RecordField(row, appointment::kBegin);
    const std::string_view rowEnd = RecordField(row, appointment::kEnd);
    if (AppointmentsOverlap(ClockNumber(begin), ClockNumber(end), ClockNumber(rowBegin), ClockNumber(rowEnd)))
      last = Concat(date, ", ", rowBegin, "-", rowEnd, " : ", RecordField(row, appointment::kSubject));
  });
  return last;
}

std::string DeleteAppointment(RecordStore& store, std::string_view date, std::string_view begin, std::string_view end,
                              OrderCopy orderCopy) {
  std::string orderNumber;
  if (date.empty() || begin.empty() || end.empty()) return orderNumber;
  store.RewriteTable(table::kAppointments, BlankRows::Drop, [&](std::string_view row) {
    if (!HasKey(row, date, begin, end)) return RowChange::Keep();
    const std::string_view order = RecordField(row, appointment::kOrderNumber);
    if (!order.empty()) orderNumber = order;
    return RowChange::Remove();
  });
  if (!orderNumber.empty() && orderCopy == OrderCopy::Clear)
    ReplaceOrderCopy(store, orderNumber, AppointmentText(date, begin, end), {}, BlankRows::Drop);
  return orderNumber;
}

void ReplaceOrderCopy(RecordStore& store, std::string_view orderNumber, std::string_view oldText,
                      std::string_view newText, BlankRows blankRows) {
  store.RewriteTable(table::kOrders, blankRows, [&](std::string_view row) {
    if (RecordField(row, kOrderKeyColumn) != orderNumber || !HoldsCopy(row, oldText)) return RowChange::Keep();
    // Kept: the whole line is searched, so that a note which quotes the appointment follows it.
    return RowChange::Replace(Replace(row, oldText, newText));
  });
}

}  // namespace kontorwerk
