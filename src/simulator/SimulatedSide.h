// One side of a game being played: who is on court, who is tired, who has how many fouls, and whom the coach
// sends in. Writes no events.
#pragma once

#include "game/Roster.h"
#include "simulator/PlayerTraits.h"
#include "simulator/Random.h"
#include "simulator/SampleTeams.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace hooptab {

struct SimulatedPlayer {
  std::string jersey;
  int position = 9;
  PlayerTraits traits;
  int energy = 1000;
  int personalFouls = 0;
  int technicalFouls = 0;
  bool isOut = false; // fouled out: never comes back
};

class SimulatedSide {
 public:
  SimulatedSide(const SampleTeam& team, int personalFoulLimit, int technicalFoulLimit, Random& random);

  const std::vector<RosterPlayer>& dressed() const { return m_roster.players(); }
  const SimulatedPlayer& player(std::size_t index) const { return m_players[index]; }
  const std::array<std::size_t, 5>& onCourt() const { return m_onCourt; }
  [[nodiscard]] bool isOnCourt(std::size_t index) const;
  [[nodiscard]] std::string list() const; // as ARRET carries it

  void play(int seconds); // those on court tire, the others rest
  void rest(int seconds); // a break: everybody rests
  // The coach's changes: who fouled out leaves, the tired make room. `kept` stays. Late and close, the best
  // play. Returns whether anybody changed.
  bool substitute(std::optional<std::size_t> kept, bool isDecisive);

  // One of those on court, each as likely as his weight; `except` never.
  [[nodiscard]] std::size_t pick(int PlayerTraits::*weight, Random& random,
                                 std::optional<std::size_t> except = std::nullopt) const;
  // Who commits a foul. Nobody when it would leave fewer than five players in the game.
  [[nodiscard]] std::optional<std::size_t> pickFouler(Random& random) const;
  [[nodiscard]] std::optional<std::size_t> pickForTechnical(Random& random) const; // bench included
  void addPersonalFoul(std::size_t index);
  void addTechnicalFoul(std::size_t index);
  [[nodiscard]] std::size_t bestFreeThrower() const;
  [[nodiscard]] int accuracy() const { return m_accuracy; } // of the whole side, today

 private:
  [[nodiscard]] bool canSpareOne() const; // more than five may still play
  [[nodiscard]] int worth(const SimulatedPlayer& player, bool isDecisive) const;

  Roster m_roster;
  std::vector<SimulatedPlayer> m_players; // in the order of the roster
  std::array<std::size_t, 5> m_onCourt = {};
  int m_personalFoulLimit;
  int m_technicalFoulLimit;
  int m_accuracy = 0;
};

} // namespace hooptab
