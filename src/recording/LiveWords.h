// What a scorer wants told beside the bare figures of a live game: whom the team fouls serve, the run of
// points without answer, and which foul of a player and of his team each one is. Lays out nothing.
#pragma once

#include "game/Side.h"
#include "recording/LiveMoment.h"
#include "settings/Texts.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace hooptab {

// Of a team's fouls: "2 to give" below the limit, "OLY shoot 2" from it on; empty without a limit.
[[nodiscard]] std::string foulWords(const LiveMoment& game, Side team, const Texts& texts);

// Points of one team since the other has scored last.
struct ScoringRun {
  Side team = Side::Visitor;
  int points = 0;        // the other has none
  std::size_t first = 0; // the place of the score that began it, among the events
  friend bool operator==(const ScoringRun&, const ScoringRun&) = default;
};
// Of the team that scored last; none before the first points.
[[nodiscard]] std::optional<ScoringRun> lastRun(const EventList& events);
[[nodiscard]] std::string runText(const ScoringRun& run); // "8–0"

// Which one a foul is.
struct FoulNumber {
  int ofPlayer = 0; // his personal, or his technical ones; 0 for an event that is no foul or does not count
  int ofTeam = 0;   // of the period, both kinds; of all overtimes with the last regular period where kept
  friend bool operator==(const FoulNumber&, const FoulNumber&) = default;
};
// One for each event of the game.
[[nodiscard]] std::vector<FoulNumber> foulNumbers(const Game& game);
[[nodiscard]] std::string ordinalText(int number, const Texts& texts); // of fouls: "3rd", "1re"
[[nodiscard]] std::string foulText(const FoulNumber& foul,
                                   const Texts& texts); // "3rd, team 4"; empty for none

} // namespace hooptab
