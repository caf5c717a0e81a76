// What a league's sheet says of a game beside its events, as it is typed: competition, officials, coaches,
// captains, the score that is played to, the rules, and how much is recorded. Tells what of it the game's
// file has to be given; writes nothing.
#pragma once

#include "game/GameDetails.h"
#include "game/Roster.h"
#include "game/Side.h"

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace hooptab {

struct GameSheet {
  std::string competition;
  std::string round;
  std::string referees;
  std::string attendance;
  PerSide<std::string> coach;
  PerSide<std::string> captain; // a jersey
  std::string targetScore;      // empty: the clock decides
  std::string ruleSet;          // the key of one of kRuleSets; empty for none
  std::optional<RecordingLevel> level;

  [[nodiscard]] static GameSheet of(const GameDetails& details);

  // Keys of the game's details with their values, of all that is not as in `before`; an empty value clears.
  using KeysAndValues = std::vector<std::pair<std::string, std::string>>;
  [[nodiscard]] KeysAndValues changedFrom(const GameSheet& before) const;

  // Digits alone, as many as a scoreboard has; or nothing.
  [[nodiscard]] static bool isTargetScore(std::string_view typed);

  friend bool operator==(const GameSheet&, const GameSheet&) = default;
};

// Who can be the captain: nobody, the players, and the jersey that is named already where none of them wears
// it.
struct CaptainChoice {
  std::string jersey; // empty: nobody
  std::string words;  // "4 Ann Able"
};
[[nodiscard]] std::vector<CaptainChoice> captainChoices(const std::vector<RosterPlayer>& players,
                                                        std::string_view captain);
// Of these choices, the one that names the captain. However the jersey is written, it is the same player.
[[nodiscard]] std::size_t positionOf(std::string_view captain, const std::vector<CaptainChoice>& choices);

} // namespace hooptab
