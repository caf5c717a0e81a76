#include "recording/GameFlow.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kStartLock = 3; // seconds

} // namespace

int GameFlow::startLock() const {
  return static_cast<int>(std::clamp<std::int64_t>(m_lockedUntil - m_time->seconds(), 0, kStartLock));
}

void GameFlow::stand(int period, int length, int seconds) {
  m_phase = Phase::Stopped;
  m_period = period;
  m_length = length;
  m_clock.set(seconds);
}

int GameFlow::start() {
  m_clock.start(m_time->seconds());
  m_phase = Phase::Running;
  return std::exchange(m_endedPeriod, 0);
}

void GameFlow::stop() {
  m_clock.stop(m_time->seconds());
  m_phase = Phase::Stopped;
}

void GameFlow::end(bool isLast, bool isTied) {
  m_lockedUntil = m_time->seconds() + kStartLock + 1; // of whole seconds the present one may be at its end
  m_endedPeriod = m_period;
  m_phase = Phase::Stopped;
  if (isLast)
    m_phase = isTied ? Phase::OvertimeAsked : Phase::Decided;
}

void GameFlow::decideAgain(bool isTied) {
  if (m_phase == Phase::OvertimeAsked || m_phase == Phase::Decided)
    m_phase = isTied ? Phase::OvertimeAsked : Phase::Decided;
}

void GameFlow::returnToEnded(int length) {
  stand(std::exchange(m_endedPeriod, 0), length, 0);
  unlock(); // nobody comes here by reflex
}

GameFlow::Stand GameFlow::exchange(const Stand& stand) {
  Stand before{m_clock, m_endedPeriod};
  m_clock = stand.clock;
  m_endedPeriod = stand.endedPeriod;
  m_phase = m_clock.isRunning() ? Phase::Running : Phase::Stopped;
  return before;
}

} // namespace hooptab
