// How what happens in a game is entered: by mouse, or by other means. Knows nothing of the game's course; the
// Replay says what comes next, and checks what has come of it.
#pragma once

#include "recording/OnCourt.h"
#include "tools/replay/Camera.h"
#include "tools/replay/Person.h"
#include "tools/replay/Recorded.h"

#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace hooptab {

// What a hand works at.
struct Table {
  Program& program;
  Person& person;
  Recorded& recorded;
  Camera& camera;
};

inline constexpr int kPlaces = 15; // of a team, wherever all its players have a button
// Of a team's list of players on court, or a part of one.
inline std::vector<int> entriesOf(unsigned bits) {
  std::vector<int> entries;
  for (int entry = 1; entry <= Roster::kLargestEntry; ++entry) {
    if ((bits >> entry & 1U) != 0)
      entries.push_back(entry);
  }
  return entries;
}

class Hand {
 public:
  virtual ~Hand() = default;

  virtual void prepare() = 0; // the window has just opened
  void toggleClock() {
    std::this_thread::sleep_until(m_toggled + kNextToggle);
    pressClock();
    m_toggled = std::chrono::steady_clock::now();
  }
  // With a question open the clock does not start: nobody is its answer.
  virtual void clearQuestion() = 0;
  virtual void switchSides() = 0;
  virtual void returnToEndedPeriod() = 0;
  // Both return in a few words how it was entered; the report counts by them.
  virtual std::string record(const GameEvent& event) = 0; // a shot or an action
  // Returns when these stand on court on disk.
  virtual std::string substitute(const OnCourt& wanted) = 0;

  int questionsInTheWay() const { return m_questionsInTheWay; }

 protected:
  virtual void pressClock() = 0;

  // That had to be closed before one could go on.
  void noteQuestionInTheWay() { ++m_questionsInTheWay; }

 private:
  // Sooner, a second START or STOP passes for a slip.
  static constexpr std::chrono::milliseconds kNextToggle{160};

  std::chrono::steady_clock::time_point m_toggled;
  int m_questionsInTheWay = 0;
};

} // namespace hooptab
