#include "livedata/EuroLeagueTime.h"

#include "storage/CalendarDay.h"
#include "storage/Module1.h"

#include <algorithm>
#include <chrono>

namespace hooptab {

namespace {

std::string digits(int number, std::size_t count) {
  std::string text = std::to_string(number);
  return std::string(count - std::min(count, text.size()), '0') + text;
}

struct Moment {
  std::string year, month, day, time;
};
Moment momentOf(std::int64_t milliseconds) {
  using namespace std::chrono;
  const sys_time<std::chrono::milliseconds> time{std::chrono::milliseconds(milliseconds)};
  const auto midnight = floor<days>(time);
  const year_month_day date(midnight);
  const hh_mm_ss clock(floor<seconds>(time - midnight));
  return {digits(static_cast<int>(date.year()), 4),
          digits(static_cast<int>(static_cast<unsigned>(date.month())), 2),
          digits(static_cast<int>(static_cast<unsigned>(date.day())), 2),
          digits(static_cast<int>(clock.hours().count()), 2) +
              digits(static_cast<int>(clock.minutes().count()), 2) +
              digits(static_cast<int>(clock.seconds().count()), 2)};
}

} // namespace

int euroLeagueMinute(int period, int centiseconds) {
  constexpr int kMinute = 6000;
  constexpr int kQuarter = 10;
  constexpr int kOvertime = 5;
  const int quarters = std::min(period - 1, kEuroLeagueQuarters);
  const int before = quarters * kQuarter + (period - 1 - quarters) * kOvertime;
  const int length = (period > kEuroLeagueQuarters ? kOvertime : kQuarter) * kMinute;
  const int played = std::clamp(length - centiseconds, 1, length);
  return before + (played + kMinute - 1) / kMinute;
}

std::optional<std::int64_t> timeOfEuroLeague(std::string_view digits) {
  constexpr std::size_t kDigits = 14;
  if (digits.size() != kDigits)
    return std::nullopt;
  const std::optional<int> day =
      calendarDay(std::string(digits.substr(0, 4)) + '-' + std::string(digits.substr(4, 2)) + '-' +
                  std::string(digits.substr(6, 2)));
  const int hour = Module1::wholeNumber(digits.substr(8, 2));
  const int minute = Module1::wholeNumber(digits.substr(10, 2));
  const int second = Module1::wholeNumber(digits.substr(12, 2));
  if (!day || hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 || second > 59)
    return std::nullopt;
  return (((std::int64_t{*day} * 24 + hour) * 60 + minute) * 60 + second) * 1000;
}

std::string euroLeagueTime(std::int64_t milliseconds) {
  constexpr std::int64_t kYear10000 = 253'402'300'800'000;
  if (milliseconds <= 0 || milliseconds >= kYear10000)
    return {};
  const Moment moment = momentOf(milliseconds);
  return moment.year + moment.month + moment.day + moment.time;
}

std::string dateOfTime(std::int64_t milliseconds) {
  const Moment moment = momentOf(milliseconds);
  return moment.year + '-' + moment.month + '-' + moment.day;
}

} // namespace hooptab
