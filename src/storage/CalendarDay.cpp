#include "storage/CalendarDay.h"

#include "storage/Module1.h"

#include <chrono>

namespace hooptab {

std::optional<int> calendarDay(std::string_view text) {
  if (text.size() != 10 || text[4] != '-' || text[7] != '-')
    return std::nullopt;
  const int year = Module1::wholeNumber(text.substr(0, 4));
  const int month = Module1::wholeNumber(text.substr(5, 2));
  const int day = Module1::wholeNumber(text.substr(8, 2));
  if (year < 0 || month < 0 || day < 0)
    return std::nullopt;
  const std::chrono::year_month_day date(std::chrono::year(year),
                                         std::chrono::month(static_cast<unsigned>(month)),
                                         std::chrono::day(static_cast<unsigned>(day)));
  if (!date.ok())
    return std::nullopt;
  return static_cast<int>(std::chrono::sys_days(date).time_since_epoch().count());
}

} // namespace hooptab
