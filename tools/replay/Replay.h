// Plays a recorded game once more through the window, event by event: turns the time, starts and stops the
// clock, goes from period to period, and has everything else entered by a Hand. After each event the file has
// to hold exactly that one more, and at each stop the window has to show the score and the clock of the
// original.
#pragma once

#include "court/ZoneMap.h"
#include "game/Tally.h"
#include "tools/replay/Hand.h"

#include <map>
#include <string>
#include <vector>

namespace hooptab {

struct ReplayReport {
  struct Entry {
    int number = 0;
    Effort effort;
  };
  std::map<std::string, Entry> entered;   // by how
  std::vector<double> displacements;      // of shots with a place, in court units
  int shotsInWrongZone = 0;               // the original's place is on a line or counts otherwise
  std::vector<double> millisecondsToDisk; // of what one click has entered
  int clockCorrections = 0;
  int returns = 0; // to a period that had ended
};

class Replay {
 public:
  // All must outlive it.
  Replay(const Game& original, const Table& table, Hand& hand);
  virtual ~Replay() = default;

  void play();
  void declareOver();
  const ReplayReport& report() const { return m_report; }

 protected:
  // Asked before each event: whether there is time for it.
  virtual bool goesOn() { return true; }
  // Reaches its time, and enters it; it is the one at `index` of the original.
  virtual void enter(const GameEvent& event, std::size_t index);
  virtual void record(const GameEvent& event);
  // The clock has just run to its end, and its stop is on disk.
  virtual void buzzed() {}
  virtual void returnToEndedPeriod();
  void passTime(int untilClock);
  void letTimePass(int seconds); // while the clock stands
  void toggleClock();

  const Game& original() const { return m_original; }
  const GameState& counted() const { return m_counted; }
  Table& table() { return m_table; }
  int period() const { return m_period; }
  int clock() const { return m_clock; }
  bool isRunning() const { return m_isRunning; }
  bool isClosed() const { return m_isClosed; }

 private:
  void reach(const GameEvent& event);
  void beginNextPeriod(const GameEvent& first);
  void letBuzzerPass();
  [[nodiscard]] bool overtimeIsAsked();
  void correctClock(int clockSeconds);
  void stop(const GameEvent& event);
  void noteShot(const GameEvent& wanted, const GameEvent& found);
  void noteEffort(const std::string& how, const Effort& before);
  void checkScoreboard();
  [[nodiscard]] bool isLastRegular() const { return m_period >= m_original.details.periods; }

  const Game& m_original;
  Table m_table;
  Hand& m_hand;
  ZoneMap m_zones;
  GameState m_counted; // the original, so far
  Tally m_tally;
  ReplayReport m_report;

  std::int64_t m_now = 36'000;
  std::int64_t m_earliestStart = 0;
  int m_period = 1;
  int m_clock = 0;
  bool m_isRunning = false;
  bool m_isClosed = false; // the period has ended, and the window stands at what follows it
};

} // namespace hooptab
