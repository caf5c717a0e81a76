#include "foreign/ClockForms.h"

#include "storage/CalendarDay.h"
#include "storage/Module1.h"

namespace hooptab {

namespace {

std::string twoDigits(int number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

} // namespace

std::optional<int> clockCentiseconds(std::string_view text) {
  constexpr int kMostMinutes = 999;
  text = Module1::trimmed(text);
  const std::size_t colon = text.find(':');
  if (colon == std::string_view::npos)
    return std::nullopt;
  const int minutes = Module1::wholeNumber(text.substr(0, colon));
  const int seconds = Module1::wholeNumber(text.substr(colon + 1, 2));
  std::string_view rest = text.substr(std::min(colon + 3, text.size()));
  int hundredths = 0;
  if (!rest.empty()) {
    hundredths = (rest.front() == ':' || rest.front() == '.') ? Module1::wholeNumber(rest.substr(1)) : -1;
    if (rest.size() == 2)
      hundredths *= 10;
  }
  if (minutes < 0 || minutes > kMostMinutes || seconds < 0 || seconds > 59 || hundredths < 0 ||
      hundredths > 99)
    return std::nullopt;
  return (minutes * 60 + seconds) * 100 + hundredths;
}

std::string isoDateOfMonthFirst(std::string_view text) {
  text = Module1::trimmed(text);
  const int month = Module1::wholeNumber(Module1::field(text, 1, '/'));
  const int day = Module1::wholeNumber(Module1::field(text, 2, '/'));
  std::string date(text);
  if (month >= 0 && day >= 0)
    date = std::string(Module1::field(text, 3, '/')) + '-' + twoDigits(month) + '-' + twoDigits(day);
  return calendarDay(date) ? date : std::string();
}

} // namespace hooptab
