#include "exchange/ClockSequence.h"

namespace hooptab {

namespace {

constexpr int kHundred = 100;

} // namespace

ClockSequence::ClockSequence(PerSide<std::size_t> players)
    : m_surplus({std::vector<double>(players[Side::Visitor]), std::vector<double>(players[Side::Home])}) {}

void ClockSequence::beginPeriod(int centiseconds) {
  m_centiseconds = centiseconds;
  m_seconds = (centiseconds + kHundred - 1) / kHundred;
}

int ClockSequence::seconds(int centiseconds) {
  return seconds(centiseconds, {});
}

int ClockSequence::seconds(int centiseconds, std::span<const Change> changes) {
  m_seconds = wholeSeconds(centiseconds, changes);
  m_centiseconds = centiseconds;
  for (const Change& change : changes)
    m_surplus[change.team][static_cast<std::size_t>(change.player)] =
        surplusWith(change, m_seconds, centiseconds);
  return m_seconds;
}

int ClockSequence::wholeSeconds(int centiseconds, std::span<const Change> changes) {
  const int below = centiseconds / kHundred;
  if (centiseconds == m_centiseconds)
    return m_seconds;
  const bool isBelowAlready = centiseconds < m_centiseconds && m_seconds == below;
  if (centiseconds % kHundred == 0 || isBelowAlready)
    return below;
  const auto squares = [&](int whole) {
    double sum = 0;
    for (const Change& change : changes)
      sum += surplusWith(change, whole, centiseconds) * surplusWith(change, whole, centiseconds);
    return sum;
  };
  return squares(below) < squares(below + 1) ? below : below + 1;
}

// His surplus when this clock becomes that second: who leaves has played longer by what it is earlier.
double ClockSequence::surplusWith(const Change& change, int seconds, int centiseconds) const {
  const double longer = static_cast<double>(centiseconds - seconds * kHundred) / kHundred;
  return m_surplus[change.team][static_cast<std::size_t>(change.player)] + (change.comes ? -longer : longer);
}

} // namespace hooptab
