// The clock and the periods of a game that is recorded: which period it is and how long, what remains of it,
// how it ends and the way back into it. Knows no events: whoever turns the clock writes them.
#pragma once

#include "recording/GameClock.h"
#include "recording/TimeSource.h"

#include <cstdint>
#include <utility>

namespace hooptab {

class GameFlow {
 public:
  enum class Phase {
    Stopped,
    Running,
    OvertimeAsked, // the last period ended with equal scores: an overtime or nothing
    Decided,       // the last period ended with different scores: "---"
    Finished,      // closed by the user: nothing can be recorded until it is reopened
    ReadOnly,      // opened for reading: nothing can be recorded or reopened
  };

  explicit GameFlow(TimeSource& time) : m_time(&time) {}

  Phase phase() const { return m_phase; }
  bool isRunning() const { return m_phase == Phase::Running; }
  bool isOpen() const { return m_phase != Phase::Finished && m_phase != Phase::ReadOnly; }
  int period() const { return m_period; }
  int length() const { return m_length; } // of the period, in seconds
  const GameClock& clock() const { return m_clock; }
  int seconds() const { return m_clock.remaining(m_time->seconds()); } // that remain
  // That have passed since a clock that runs would have been at 00:00.
  int secondsBeyondEnd() const { return m_clock.beyondEnd(m_time->seconds()); }
  // The period that has ended since the last start; 0: none.
  int endedPeriod() const { return m_endedPeriod; }
  // Seconds for which nobody can start the clock, because a period has just ended.
  int startLock() const;

  // In that period, with the clock standing.
  void stand(int period, int length, int seconds);
  void forgetEnd() { m_endedPeriod = 0; }
  void unlock() { m_lockedUntil = 0; }
  int start(); // the period to which one could return before it
  void stop();
  void setClock(int seconds) { m_clock.set(seconds); }
  // The period is over; the last one decides the game, or asks for an overtime.
  void end(bool isLast, bool isTied);
  void decideAgain(bool isTied); // the score with which it ended is another
  void close(Phase phase) { m_phase = phase; }
  // Once more, with its clock at 00:00.
  void returnToEnded(int length);

  // For taking a start back, and doing it again as if nothing had been.
  struct Stand {
    GameClock clock;
    int endedPeriod = 0;
  };
  Stand exchange(const Stand& stand);

 private:
  TimeSource* m_time;
  GameClock m_clock;
  Phase m_phase = Phase::Stopped;
  int m_period = 1;
  int m_length = 0;
  int m_endedPeriod = 0;
  std::int64_t m_lockedUntil = 0; // no start before
};

} // namespace hooptab
