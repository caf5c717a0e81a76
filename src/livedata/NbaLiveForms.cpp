#include "livedata/NbaLiveForms.h"

#include "court/CourtGeometry.h"
#include "foreign/NameForms.h"
#include "storage/CalendarDay.h"
#include "storage/Module1.h"
#include "storage/Utf8.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace hooptab::nba_live {

namespace {

constexpr int kMinute = 6000; // centiseconds
constexpr std::int64_t kSecond = 1000;
constexpr std::int64_t kDay = 24 * 60 * 60 * kSecond;
constexpr double kUnitsPerTenthOfFoot = court::units(0.03048);

// The first digits behind a point, as that many: ".6" is 600 of three. 0 where there is no point.
int fractionOf(std::string_view text, int digits) {
  if (!text.starts_with('.'))
    return 0;
  int fraction = 0;
  bool isOver = false;
  for (std::size_t i = 1; i <= static_cast<std::size_t>(digits); ++i) {
    isOver = isOver || i >= text.size() || text[i] < '0' || text[i] > '9';
    fraction = fraction * 10 + (isOver ? 0 : text[i] - '0');
  }
  return fraction;
}

} // namespace

std::optional<int> centisecondsOf(std::string_view clock) {
  const std::size_t minutesEnd = clock.find('M');
  if (!clock.starts_with("PT") || !clock.ends_with('S') || minutesEnd == std::string_view::npos)
    return std::nullopt;
  const std::string_view rest = clock.substr(minutesEnd + 1, clock.size() - minutesEnd - 2);
  const std::size_t point = std::min(rest.find('.'), rest.size());
  const int minutes = Module1::wholeNumber(clock.substr(2, minutesEnd - 2));
  const int seconds = Module1::wholeNumber(rest.substr(0, point));
  constexpr int kMostMinutesPlayed = 9999;
  if (minutes < 0 || minutes > kMostMinutesPlayed || seconds < 0 || seconds > 59)
    return std::nullopt;
  return minutes * kMinute + seconds * 100 + fractionOf(rest.substr(point), 2);
}

std::string clockText(int centiseconds) {
  const int left = std::max(centiseconds, 0);
  char text[32];
  std::snprintf(text, sizeof text, "PT%02dM%02d.%02dS", left / kMinute, left / 100 % 60, left % 100);
  return text;
}

std::optional<std::int64_t> wallClockOf(std::string_view time) {
  constexpr std::size_t kDateLength = 10;
  constexpr std::size_t kSecondsEnd = 19;
  const auto day = calendarDay(time.substr(0, std::min(kDateLength, time.size())));
  if (!day || time.size() < kSecondsEnd || time[kDateLength] != 'T')
    return std::nullopt;
  const int hour = Module1::wholeNumber(time.substr(11, 2));
  const auto inHour = Module1::clockSeconds(time.substr(14, 5));
  if (hour < 0 || hour > 23 || time[13] != ':' || !inHour)
    return std::nullopt;
  return *day * kDay + (hour * 3600 + *inHour) * kSecond + fractionOf(time.substr(kSecondsEnd), 3);
}

std::string timeText(std::int64_t wallClock) {
  const std::chrono::sys_time<std::chrono::milliseconds> time{std::chrono::milliseconds(wallClock)};
  const auto day = std::chrono::floor<std::chrono::days>(time);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss clock(time - day);
  char text[64];
  std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                static_cast<int>(clock.seconds().count()), static_cast<int>(clock.subseconds().count()));
  return text;
}

std::string dayOf(std::int64_t wallClock) {
  constexpr std::int64_t kEasternTime = -5 * 60 * 60 * kSecond;
  return timeText(wallClock + kEasternTime).substr(0, 10);
}

std::pair<double, double> placeOf(double across, double away) {
  return {std::clamp(court::kBasketX + away * kUnitsPerTenthOfFoot, 0.0, court::kLength),
          std::clamp(court::kBasketY + across * kUnitsPerTenthOfFoot, 0.0, court::kWidth)};
}

std::pair<int, int> legacyOf(const std::pair<double, double>& place) {
  // The middle of the unit: a tenth of a foot is less than half of one.
  const auto legacy = [](double unit, double ring, double end) {
    const double whole = std::floor(std::clamp(unit, 0.0, end));
    return static_cast<int>(std::lround((whole + 0.5 - ring) / kUnitsPerTenthOfFoot));
  };
  return {legacy(place.second, court::kBasketY, court::kWidth),
          legacy(place.first, court::kBasketX, court::kLength)};
}

std::string shortName(std::string_view name) {
  const NameParts parts = partsOfName(name);
  std::string_view rest = parts.given;
  return rest.empty() ? parts.family : std::string(takeCodePoint(rest).bytes) + ". " + parts.family;
}

std::string_view shotDetail(std::string_view subType, std::string_view descriptor) {
  for (const ShotWord& each : kShotWords) {
    if (each.subType == subType && descriptor.find(each.descriptor) != std::string_view::npos)
      return each.detail;
  }
  return {};
}

} // namespace hooptab::nba_live
