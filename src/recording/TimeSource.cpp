#include "recording/TimeSource.h"

#include <ctime>

namespace hooptab {

namespace {

constexpr std::int64_t kSecond = 1'000'000'000;

// Counts the time in which the machine sleeps, and no change of the system's clock.
std::int64_t sinceBoot() {
  timespec time = {};
  ::clock_gettime(CLOCK_BOOTTIME, &time);
  return time.tv_sec * kSecond + time.tv_nsec;
}

std::int64_t sinceMidnight() {
  timespec time = {};
  ::clock_gettime(CLOCK_REALTIME, &time);
  tm local = {};
  ::localtime_r(&time.tv_sec, &local);
  constexpr std::int64_t kMinute = 60;
  return ((local.tm_hour * kMinute + local.tm_min) * kMinute + local.tm_sec) * kSecond + time.tv_nsec;
}

} // namespace

SystemTime::SystemTime() : m_offsetNanoseconds(sinceMidnight() - sinceBoot()) {
  layOnUtc();
}

std::int64_t SystemTime::utcMilliseconds() {
  constexpr std::int64_t kMillisecond = 1'000'000;
  return (sinceBoot() + m_utcNanoseconds) / kMillisecond;
}

void SystemTime::layOnUtc() {
  timespec time = {};
  ::clock_gettime(CLOCK_REALTIME, &time);
  m_utcNanoseconds = time.tv_sec * kSecond + time.tv_nsec - sinceBoot();
}

std::int64_t SystemTime::seconds() {
  return (sinceBoot() + m_offsetNanoseconds) / kSecond;
}

} // namespace hooptab
