#include "calendar/DayGrid.h"

#include <cstdint>
#include <optional>
#include <string>

#include "calendar/AppointmentTimes.h"
#include "calendar/Appointments.h"
#include "store/Numbers.h"
#include "store/RecordLine.h"
#include "store/Text.h"

namespace kontorwerk {

namespace {

constexpr int kMinutesPerQuarter = 15;
constexpr std::size_t kGridColumns = 6;
constexpr std::string_view kBarText = " -";

std::string& CellOf(ListRow& row, grid::Column column) { return row.cells[static_cast<std::size_t>(column - 1)]; }

std::vector<ListRow> EmptyGrid() {
  std::vector<ListRow> rows;
  rows.reserve(kQuartersOfDay);
  for (int quarter = 0; quarter < kQuartersOfDay; ++quarter) {
    ListRow row;
    row.cells.resize(kGridColumns);
    CellOf(row, grid::kNumber) = NumberText(std::int64_t{quarter} + 1);
    CellOf(row, grid::kTime) = QuarterText(quarter);
    rows.push_back(std::move(row));
  }
  return rows;
}

std::optional<Colour> ColourOf(std::string_view text) {
  const std::optional<double> value = ToNumber(text);
  if (!value || *value < 0 || *value > kWhite.value) return std::nullopt;
  return Colour{static_cast<int>(*value)};
}

void EnterAppointment(std::vector<ListRow>& rows, std::string_view row) {
  const std::optional<int> begin = MinutesOfDay(RecordField(row, appointment::kBegin));
  if (!begin || *begin / kMinutesPerQuarter >= kQuartersOfDay) return;
  const int first = *begin / kMinutesPerQuarter;
  ListRow& head = rows[static_cast<std::size_t>(first)];
  CellOf(head, grid::kBegin) = RecordField(row, appointment::kBegin);
  CellOf(head, grid::kEnd) = RecordField(row, appointment::kEnd);
  CellOf(head, grid::kSubject) = RecordField(row, appointment::kSubject);
  CellOf(head, grid::kOrderNumber) = RecordField(row, appointment::kOrderNumber);
  head.colour.reset();

  const int end = MinutesOfDay(RecordField(row, appointment::kEnd)).value_or(0);
  for (int quarter = first + 1; quarter < kQuartersOfDay && quarter * kMinutesPerQuarter < end; ++quarter) {
    ListRow& later = rows[static_cast<std::size_t>(quarter)];
    if (!CellOf(later, grid::kBegin).empty()) continue;
    CellOf(later, grid::kSubject) = kBarText;
    later.colour = ColourOf(RecordField(row, appointment::kColour));
  }
}

}  // namespace

DayGrid MakeDayGrid(std::string_view table, const Date& date) {
  DayGrid result{EmptyGrid(), {}};
  const std::string dateText = DateText(date);
  ForEachRow(table, [&](std::string_view row) {
    const std::string_view rowDate = RecordField(row, appointment::kDate);
    const std::optional<Date> day = ParseDate(rowDate);
    if (!day) return;
    result.days.push_back(*day);
    if (rowDate == dateText) EnterAppointment(result.rows, row);
  });
  return result;
}

}  // namespace kontorwerk
