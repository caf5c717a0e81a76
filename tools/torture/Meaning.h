// What the hand has meant so far, and where the file of the game says something else: shots and actions in
// their order, who was on court at each, whether the clock runs, and the counts and seconds of everybody.
#pragma once

#include "game/GameFile.h"
#include "recording/OnCourt.h"

#include <optional>
#include <string>

namespace hooptab {

class Meaning {
 public:
  // Of the game that is being played.
  explicit Meaning(const Game& original);
  void add(const GameEvent& event); // of the original
  // The last one happened at that clock instead.
  void putOffLast(int clock);

  struct Moment {
    int period = 1;
    int clock = 0;
    bool isRunning = false;
  };
  struct Difference {
    enum class Kind { None, Missing, Wrong, Clock, Lists, Seconds };
    Kind kind = Kind::None;
    std::string words = {};
    const GameEvent* missing = nullptr; // the first that the file lacks, when it has nothing behind it
    explicit operator bool() const { return kind != Kind::None; }
  };
  // The most basic one.
  [[nodiscard]] Difference difference(const Game& recorded, const Moment& now) const;
  [[nodiscard]] OnCourt onCourt() const;
  int events() const { return m_events; } // without those of the clock

 private:
  Game m_meant;
  int m_events = 0;
};

} // namespace hooptab
