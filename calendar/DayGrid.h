// One day as a grid of quarter hours: the rows of the calendar's list, and the days that hold an appointment.
#pragma once

#include <string_view>
#include <vector>

#include "platform/ListView.h"
#include "store/Dates.h"

namespace kontorwerk {

// Columns of the grid. The first, the row's number, is kept from use.
namespace grid {
enum Column { kNumber = 1, kTime, kBegin, kEnd, kSubject, kOrderNumber };
}  // namespace grid

struct DayGrid {
  std::vector<ListRow> rows;  // 96, from 00:00 to 23:45
  std::vector<Date> days;     // the day of each appointment of the table, whatever the day of the grid
};

// An appointment fills the row of its begin, or of the quarter hour before it; the further rows up to its end carry "
// -" and its colour. A row in which another appointment begins keeps that one's text. A row of the table without a date
// that can be read leaves nothing, one without a begin that can be read only its day.
[[nodiscard]] DayGrid MakeDayGrid(std::string_view table, const Date& date);

}  // namespace kontorwerk
